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
    Bildmodus modus;
    Grenze x0, x1, y0, y1;
};

using enum Grenze;
constexpr std::array<Platz, 13> Plaetze{{
    {Vollbild, Anfang, Ende, Anfang, Ende},                                           //
    {ViertelLinksOben, Anfang, Mitte, Anfang, Mitte},                                 //
    {ViertelRechtsOben, Mitte, Ende, Anfang, Mitte},                                  //
    {ViertelLinksUnten, Anfang, Mitte, Mitte, Ende},                                  //
    {ViertelRechtsUnten, Mitte, Ende, Mitte, Ende},                                   //
    {VollvorschauRechtsOben, EndeMinusVorschau, Ende, Anfang, Vorschau},              //
    {ViertelvorschauLinksOben, Anfang, Vorschau, Anfang, Vorschau},                   //
    {ViertelvorschauRechtsOben, Mitte, MittePlusVorschau, Anfang, Vorschau},          //
    {ViertelvorschauLinksUnten, Anfang, Vorschau, Mitte, MittePlusVorschau},          //
    {ViertelvorschauRechtsUnten, Mitte, MittePlusVorschau, Mitte, MittePlusVorschau}, //
    {VollvorschauLinksOben, Anfang, Vorschau, Anfang, Vorschau},                      //
    {VollvorschauLinksUnten, Anfang, Vorschau, EndeMinusVorschau, Ende},              //
    {VollvorschauRechtsUnten, EndeMinusVorschau, Ende, EndeMinusVorschau, Ende},      //
}};

} // namespace

Rechteck platzierung(qint32 halbesBild, const Bildmasse& masse) {
    const auto* const platz = std::find_if(Plaetze.begin(), Plaetze.end(),
                                           [=](const Platz& p) { return p.modus == halbesBild; });
    Rechteck r{0, halbesBild > Vollbild ? masse.w : masse.W, 0,
               halbesBild > Vollbild ? masse.h : masse.H};
    if (platz != Plaetze.end()) {
        r = {lage(platz->x0, masse.W, masse.w, masse.pX),
             lage(platz->x1, masse.W, masse.w, masse.pX),
             lage(platz->y0, masse.H, masse.h, masse.pY),
             lage(platz->y1, masse.H, masse.h, masse.pY)};
    }
    return {std::clamp(r.x0, qint64{0}, masse.W), std::clamp(r.x1, qint64{0}, masse.W),
            std::clamp(r.y0, qint64{0}, masse.H), std::clamp(r.y1, qint64{0}, masse.H)};
}
