#include "equations/FormelnKomplex.h"
#include "equations/Gleichungen.h"
#include "equations/Kernlauf.h"
#include "Mandelbrot.h"

// The complex equations that are made of a term: powers, eyes and poles.

namespace {

using Komplex = std::complex<double>;

/// The exponent of a term; a power K of 0 is lastingly replaced by 10.
qint64 exponentAus(const Mandelbrot& m, Term term) {
    switch (term) {
    case Term::ZhochK:
        return kPotenzRepariert(m);
    case Term::ZmHochHg:
        return m.kPotHg;
    case Term::ZmHochHuZ:
    case Term::ZSZmHochHu:
        return m.kPotHu;
    default:
        return 0;
    }
}

} // namespace

double Mandelbrot::IterateZmalZ_Complex_plusC(double xqr, double yqr, double Cxqr,
                                              double Cyqr) const {
    const Term term = termAus(PotenzTerme, wahl_Gleichung);
    const qint64 n = exponentAus(*this, term);
    const Komplex start(xqr, yqr);
    const Komplex c(Cxqr, Cyqr);
    return mitTerm<Term::Z2, Term::Z3, Term::Z4, Term::Z5, Term::ZhochK>(term, [&](auto t) {
        return gekoppeltIterieren<KomplexeKopplung>(*this, Ungebremst<TermPlusC<t.value>>{{n}},
                                                    start, c, c);
    });
}

double Mandelbrot::IterateZmalZS_Complex_plusC(double xqr, double yqr, double Cxqr,
                                               double Cyqr) const {
    const Term term = termAus(AugenTerme, wahl_Gleichung);
    const qint64 n = exponentAus(*this, term);
    const Komplex start(xqr, yqr);
    const Komplex c(Cxqr, Cyqr);
    return mitTerm<Term::Zm, Term::ZmZ, Term::ZSZm, Term::Zm2, Term::ZmHochHg, Term::ZmHochHuZ,
                   Term::ZSZmHochHu>(term, [&](auto t) {
        return gekoppeltIterieren<KomplexeKopplung>(*this, Ungebremst<TermPlusC<t.value>>{{n}},
                                                    start, c, c);
    });
}

double Mandelbrot::IterateVierpol_Complex(double xqr, double yqr, double Cxqr, double Cyqr) const {
    const bool auge = familie(wahl_Gleichung) > 10;
    const Term term = termAus(auge ? PolAugenTerme : PolTerme, wahl_Gleichung);
    const qint64 n = exponentAus(*this, term);
    const double g = g_Genauigkeit / 10000.0;
    const Komplex start(abgerueckt(xqr, g), abgerueckt(yqr, g));
    const Komplex c(Cxqr, Cyqr);
    return mitTerm<Term::Z, Term::Z2, Term::Z3, Term::Z4, Term::Z5, Term::Z6, Term::ZhochK,
                   Term::ZS, Term::Zm, Term::ZmZ, Term::Zm2, Term::Zm2Z, Term::ZmHochHg,
                   Term::ZmHochHuZ, Term::ZSZmHochHu>(term, [&](auto t) {
        return gekoppeltIterieren<KomplexeKopplung>(*this, Pol<t.value>{n}, start, c, c);
    });
}
