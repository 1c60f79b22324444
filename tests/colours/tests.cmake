# wirbelwerk_test(test_name colours/test_name.cpp)
