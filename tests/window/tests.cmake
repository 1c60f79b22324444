wirbelwerk_test(test_abgleich window/test_abgleich.cpp)
wirbelwerk_test(test_befehle window/test_befehle.cpp window/Befehlszeilen.cpp)
wirbelwerk_test(test_menue window/test_menue.cpp)
wirbelwerk_test(test_steuerfeld window/test_steuerfeld.cpp)
