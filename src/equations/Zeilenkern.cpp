#include "equations/Zeilenkern.h"

#include "equations/Abbruch.h"
#include "equations/Kernwahl.h"

#include <algorithm>

namespace {

constexpr double Voreinstellung = 1000.111; ///< offset of a preset history entry

void punktweiseRechnen(const Mandelbrot& m, Kern kern, const Zeilenauftrag& a) {
    for (std::size_t i = 0; i < a.x.size(); ++i) {
        const double startX = a.julia ? a.x[i] : 0.0;
        const double startY = a.julia ? a.y : 0.0;
        zyklusVoreinstellen(m, startX, startY);
        a.wert[i] = a.julia ? (m.*kern)(startX, startY, m.CJ_x, m.CJ_y)
                            : (m.*kern)(startX, startY, a.x[i], a.y);
        a.zaehler[i] = m.privateIterat;
    }
}

} // namespace

void zyklusVoreinstellen(const Mandelbrot& m, double wertx0, double werty0) {
    if (!istZyklussuche(static_cast<Abbruchart>(m.glg_Abbruch))) {
        return;
    }
    const auto entfernt = std::clamp<qint64>(qint64{m.g_zycmax} + 1, 0, Mandelbrot::ZyklusMax + 1);
    std::fill_n(m.xm.begin(), entfernt, wertx0 + Voreinstellung);
    std::fill_n(m.pm.begin(), entfernt, wertx0 + Voreinstellung);
    std::fill_n(m.ym.begin(), entfernt, werty0 + Voreinstellung);
    std::fill_n(m.tm.begin(), entfernt, werty0 + Voreinstellung);
}

void zeileRechnen(const Mandelbrot& m, const Zeilenauftrag& auftrag) {
    const Kern kern = kernFuer(m.wahl_Gleichung);
    if (kern != nullptr) {
        punktweiseRechnen(m, kern, auftrag);
    }
}
