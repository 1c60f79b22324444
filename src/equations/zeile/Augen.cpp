#include "equations/zeile/Zeilentafel.h"

template <>
const Zeilenlauf* zeilentafel<Satz::Befehle, formeln::Augen>() {
    return Zeilenlaeufe<Satz, formeln::Augen::Formeln>::Tafel;
}
