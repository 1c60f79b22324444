wirbelwerk_test(test_befehle window/test_befehle.cpp window/Befehlszeilen.cpp)
wirbelwerk_test(test_menue window/test_menue.cpp)
