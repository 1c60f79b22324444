#include "equations/zeile/Zeilentafel.h"

template <>
const Zeilenlauf* zeilentafel<Satz::Befehle, formeln::Wurzeln>() {
    return Zeilenlaeufe<Satz, formeln::Wurzeln::Formeln>::Tafel;
}
