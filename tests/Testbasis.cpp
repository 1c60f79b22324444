#include "Testbasis.h"
