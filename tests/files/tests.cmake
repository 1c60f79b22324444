wirbelwerk_test(test_bilddaten files/test_bilddaten.cpp)
wirbelwerk_test(test_export files/test_export.cpp)
