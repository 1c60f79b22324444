wirbelwerk_test(test_gleichungen equations/test_gleichungen.cpp)
wirbelwerk_test(test_kerne equations/test_kerne.cpp equations/Bezugskern.cpp equations/Bezugskern.h)
wirbelwerk_test(test_startwerte equations/test_startwerte.cpp)
