# wirbelwerk_test(test_name window/test_name.cpp)
