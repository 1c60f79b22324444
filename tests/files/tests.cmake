wirbelwerk_test(test_dateien files/test_dateien.cpp)
