wirbelwerk_test(test_farben colours/test_farben.cpp)
