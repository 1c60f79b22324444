wirbelwerk_test(test_aufwand equations/test_aufwand.cpp)
wirbelwerk_test(test_kerne equations/test_kerne.cpp equations/Bezugskern.cpp equations/Bezugskern.h)
wirbelwerk_test(test_startwerte equations/test_startwerte.cpp)
wirbelwerk_test(test_zeilenkern equations/test_zeilenkern.cpp equations/Bezugskern.cpp equations/Bezugskern.h)
wirbelwerk_test(test_quotient equations/test_quotient.cpp)
wirbelwerk_spuren(test_quotient ${CMAKE_CURRENT_SOURCE_DIR}/equations/Quotientenprobe.cpp)

# Lanes are not inlined under the sanitizers: a frame of each small function on the heap would make
# the rows ten times slower.
if(WIRBELWERK_SANITIZE)
  set_tests_properties(test_zeilenkern PROPERTIES ENVIRONMENT_MODIFICATION
    ASAN_OPTIONS=string_append::detect_stack_use_after_return=0)
endif()

# The longest: begun first, it leaves no processor idle at the end.
set_tests_properties(test_zeilenkern PROPERTIES COST 1000)
