# wirbelwerk_test(test_name equations/test_name.cpp)
