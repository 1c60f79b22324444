#include "colours/Palettenwahl.h"
#include "equations/Gleichungen.h"
#include "Mandelbrot.h"
#include "model/Bildlauf.h"
#include "model/Einfaerbung.h"
#include "model/Geometrie.h"
#include "model/Orbit.h"
#include "model/Pixelpass.h"

#include <algorithm>

namespace {

/// What a file or the panel may have left out of range.
void felderRichten(Mandelbrot& m) {
    m.set_wahl_Gleichung(m.wahl_Gleichung);
    m.g_zycmax = std::min(m.g_zycmax, qint32{Mandelbrot::ZyklusMax});
}

void bildflaecheAnpassen(Mandelbrot& m, const Bildlauf& lauf) {
    const QSize groesse(lauf.SpaltenKLGross + Mandelbrot::Streifenbreite, lauf.ZeilenKLGross);
    if (m.Bildflaeche.size() != groesse) {
        m.Bildflaeche = QImage(groesse, QImage::Format_ARGB32_Premultiplied);
        m.Bildflaeche.fill(Qt::transparent);
    }
}

bool wirdGeloescht(const Mandelbrot& m) { return m.g_BildLoeschen == 1 || m.g_BildLoeschen == 2; }

/// Julia type, family, name and the halves of K.
void gleichungstyp(Mandelbrot& m, Bildlauf& lauf) {
    m.g_JuliaJa = m.wahl_Gleichung % 2 == 0 ? 1 : 0;
    lauf.Juliamenge = static_cast<qint16>(m.g_JuliaJa);
    lauf.wahlGlgEndzahl = familie(m.wahl_Gleichung);
    m.EquationName();
    const bool exponentenfamilie = lauf.wahlGlgEndzahl == 7 || lauf.wahlGlgEndzahl == 8;
    if (m.wahl_Gleichung > 500 && m.g_kPotenz == 0 && !exponentenfamilie) {
        m.g_kPotenz = 10;
    }
    m.kPotHalbe = m.g_kPotenz / 2;
    (2 * qint64{m.kPotHalbe} >= m.g_kPotenz ? m.kPotHg : m.kPotHu) = m.kPotHalbe;
}

/// Signature and record of this picture; settles a request up to Rechnen by comparing with the
/// stored picture.
void anforderungBestimmen(Mandelbrot& m, Bildlauf& lauf) {
    const Signatur neu = signaturBilden(m, lauf.SpaltenKLGross, lauf.ZeilenKLGross);
    const Signatur& gespeichert = lauf.signatur(m);
    m.DatenSichern();
    lauf.allePixel =
        m.g_OrbitJa < 1 || m.g_RechnenJa >= RechnenMitOrbit || !neu.gleichBisAufOrbit(gespeichert);
    if (m.g_RechnenJa <= Rechnen) {
        // The sum is compared as well: setting it to 0 demands a new computation.
        const bool summeGleich = m.bilddatenSumme == lauf.summe(m) ||
                                 (std::isnan(m.bilddatenSumme) && std::isnan(lauf.summe(m)));
        m.g_RechnenJa = summeGleich && neu.gleich(gespeichert) ? NurFaerben : Rechnen;
        lauf.summe(m) = m.bilddatenSumme;
    }
    lauf.LinienRechnen =
        qint64{m.g_OrbitJa} + m.g_GitterJa + m.g_MittelkreuzJa + m.g_NullkreuzJa > 0;
}

/// A picture to be cleared is computed with equation 0: every pixel stores the preset count.
void loeschenVorbereiten(Mandelbrot& m, Bildlauf& lauf) {
    lauf.wahlrett = m.wahl_Gleichung;
    if (!wirdGeloescht(m)) {
        return;
    }
    m.g_RechnenJa = Rechnen;
    lauf.allePixel = true;
    m.privateIterat = m.g_BildLoeschen == 1 ? 0 : m.Max_Iterationen;
    m.wahl_Gleichung = 0;
}

void nachsorge(Mandelbrot& m, const Bildlauf& lauf) {
    if (m.g_BildLoeschen > 0) {
        m.wahl_Gleichung = lauf.wahlrett;
        m.g_BildLoeschen = 0;
    }
    if (m.g_RechnenJa >= Rechnen) {
        // Kernels repair lastingly and the placement changes the mode: without new sums the next
        // paint would compute the same picture again.
        lauf.signatur(m) = signaturBilden(m, lauf.SpaltenKLGross, lauf.ZeilenKLGross);
        lauf.summe(m) = m.bilddatenSumme;
    }
    if (m.g_RechnenJa == RechnenMitOrbit) {
        m.g_RechnenJa = Rechnen;
    }
}

} // namespace

void Mandelbrot::Berechnung(QPainter* Paint) {
    felderRichten(*this);
    if (g_OrbitJa < 1) {
        letzterOrbit.reset(); // switched on again, the same orbit is a new one
    }
    if (g_OrbitJa > 0 && g_RechnenJa == VorschauRechnen && g_OrbitMP == 0) {
        Q_EMIT OrbitOffSignal();
        return;
    }
    g_PalettenZahl = palettenZahl(zahl_farbtab);
    Bildlauf lauf;
    lauf.maler = Paint;
    if (!bildgroesse(*this, lauf)) {
        return;
    }
    // A picture is never cleared as a preview.
    if (g_RechnenJa == VorschauRechnen && (g_VorschauAusJa == 1 || wirdGeloescht(*this))) {
        g_RechnenJa = Rechnen;
    }
    lauf.Matrix = zahl_Matrix >= MatrixEin;
    abmessungen(*this, lauf);
    if (!isVisible()) {
        return;
    }
    bildflaecheAnpassen(*this, lauf);
    palettenstreifen(*this, lauf, Bildflaeche);
    matrixGeometrie(*this, lauf);
    gleichungstyp(*this, lauf);
    anforderungBestimmen(*this, lauf);
    loeschenVorbereiten(*this, lauf);
    if (g_RechnenJa >= Rechnen || lauf.LinienRechnen) {
        bildPlatzieren(*this, lauf);
        pixelPass(*this, lauf);
    }
    nachsorge(*this, lauf);
    einfaerben(*this, lauf, Bildflaeche);
    Paint->drawImage(0, 0, Bildflaeche);
    if (lauf.orbitDraw) {
        orbitZeichnen(*this, lauf);
    }
}
