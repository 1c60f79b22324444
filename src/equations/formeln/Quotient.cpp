#include "equations/formeln/Quotient.h"

std::complex<double> geteilt(std::complex<double> z, std::complex<double> n) {
    using K = std::complex<double>;
    using Teile = quotient::Teile<double>;
    const double a = z.real(), b = z.imag(), c = n.real(), d = n.imag();
    // Which part is larger cannot be foretold: one jump, not one for every exchange.
    const K q = std::fabs(c) < std::fabs(d)
                    ? quotient::ausTeilen<K>(Teile{b, a, d, c}, std::true_type{})
                    : quotient::ausTeilen<K>(Teile{a, b, c, d}, std::false_type{});
    return std::isnan(q.real()) && std::isnan(q.imag()) ? z / n : q;
}
