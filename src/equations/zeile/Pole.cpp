#include "equations/zeile/Zeilentafel.h"

template <>
const Zeilenlauf* zeilentafel<Satz::Befehle, formeln::Pole>() {
    return Zeilenlaeufe<Satz, formeln::Pole::Formeln>::Tafel;
}
