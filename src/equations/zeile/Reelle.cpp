#include "equations/zeile/Zeilentafel.h"

template <>
const Zeilenlauf* zeilentafel<Satz::Befehle, formeln::Reelle>() {
    return Zeilenlaeufe<Satz, formeln::Reelle::Formeln>::Tafel;
}
