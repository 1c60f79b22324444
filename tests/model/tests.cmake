wirbelwerk_test(test_berechnung model/test_berechnung.cpp)
wirbelwerk_test(test_einfaerbung model/test_einfaerbung.cpp)
wirbelwerk_test(test_goldbilder model/test_goldbilder.cpp)
wirbelwerk_test(test_orbit model/test_orbit.cpp)
