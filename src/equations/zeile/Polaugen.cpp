#include "equations/zeile/Zeilentafel.h"

template <>
const Zeilenlauf* zeilentafel<Satz::Befehle, formeln::Polaugen>() {
    return Zeilenlaeufe<Satz, formeln::Polaugen::Formeln>::Tafel;
}
