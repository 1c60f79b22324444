wirbelwerk_test(test_hilfe help/test_hilfe.cpp)
