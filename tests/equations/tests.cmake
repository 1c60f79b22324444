wirbelwerk_test(test_aufwand equations/test_aufwand.cpp)
wirbelwerk_test(test_kerne equations/test_kerne.cpp equations/Bezugskern.cpp equations/Bezugskern.h)
wirbelwerk_test(test_startwerte equations/test_startwerte.cpp)
wirbelwerk_test(test_zeilenkern equations/test_zeilenkern.cpp equations/Bezugskern.cpp equations/Bezugskern.h)
