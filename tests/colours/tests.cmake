wirbelwerk_test(test_farbwahl colours/test_farbwahl.cpp)
wirbelwerk_test(test_paletten colours/test_paletten.cpp)
