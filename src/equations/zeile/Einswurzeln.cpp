#include "equations/zeile/Zeilentafel.h"

template <>
const Zeilenlauf* zeilentafel<Satz::Befehle, formeln::Einswurzeln>() {
    return Zeilenlaeufe<Satz, formeln::Einswurzeln::Formeln>::Tafel;
}
