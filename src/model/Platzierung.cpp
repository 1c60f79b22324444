#include "model/Platzierung.h"

#include <algorithm>
#include <array>

namespace {

/// Borders that a placement can have; along x and y with the sizes of that direction.
enum class Grenze { Anfang, Mitte, Ende, Vorschau, MittePlusVorschau, EndeMinusVorschau };

constexpr qint64 lage(Grenze grenze, qint64 voll, qint64 halb, qint64 vorschau) {
    switch (grenze) {
    case Grenze::Anfang:
        return 0;
    case Grenze::Mitte:
        return halb;
    case Grenze::Ende:
        return voll;
    case Grenze::Vorschau:
        return vorschau;
    case Grenze::MittePlusVorschau:
        return halb + vorschau;
    case Grenze::EndeMinusVorschau:
        return voll - vorschau;
    }
    return 0;
}

struct Platz {
    qint32 modus;
    Grenze x0, x1, y0, y1;
};

using enum Grenze;
constexpr std::array<Platz, 13> Plaetze{{
    {0, Anfang, Ende, Anfang, Ende},                          //
    {1, Anfang, Mitte, Anfang, Mitte},                        //
    {2, Mitte, Ende, Anfang, Mitte},                          //
    {3, Anfang, Mitte, Mitte, Ende},                          //
    {4, Mitte, Ende, Mitte, Ende},                            //
    {10, EndeMinusVorschau, Ende, Anfang, Vorschau},          //
    {11, Anfang, Vorschau, Anfang, Vorschau},                 //
    {12, Mitte, MittePlusVorschau, Anfang, Vorschau},         //
    {13, Anfang, Vorschau, Mitte, MittePlusVorschau},         //
    {14, Mitte, MittePlusVorschau, Mitte, MittePlusVorschau}, //
    {100, Anfang, Vorschau, Anfang, Vorschau},                //
    {300, Anfang, Vorschau, EndeMinusVorschau, Ende},         //
    {400, EndeMinusVorschau, Ende, EndeMinusVorschau, Ende},  //
}};

} // namespace

Rechteck platzierung(qint32 halbesBild, const Bildmasse& masse) {
    const auto* const platz = std::find_if(Plaetze.begin(), Plaetze.end(),
                                           [=](const Platz& p) { return p.modus == halbesBild; });
    Rechteck r{0, halbesBild > 0 ? masse.w : masse.W, 0, halbesBild > 0 ? masse.h : masse.H};
    if (platz != Plaetze.end()) {
        r = {lage(platz->x0, masse.W, masse.w, masse.pX),
             lage(platz->x1, masse.W, masse.w, masse.pX),
             lage(platz->y0, masse.H, masse.h, masse.pY),
             lage(platz->y1, masse.H, masse.h, masse.pY)};
    }
    return {std::clamp(r.x0, qint64{0}, masse.W), std::clamp(r.x1, qint64{0}, masse.W),
            std::clamp(r.y0, qint64{0}, masse.H), std::clamp(r.y1, qint64{0}, masse.H)};
}
