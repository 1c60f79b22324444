# wirbelwerk_test(test_name files/test_name.cpp)
