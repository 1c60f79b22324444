# wirbelwerk_test(test_name help/test_name.cpp)
