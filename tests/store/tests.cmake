# wirbelwerk_test(test_name store/test_name.cpp)
