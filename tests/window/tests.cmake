wirbelwerk_test(test_befehle window/test_befehle.cpp)
wirbelwerk_test(test_fenster window/test_fenster.cpp)
wirbelwerk_test(test_start window/test_start.cpp)
