#include "Fft.h"

#include <cmath>

#include "Recursive.h"

namespace filter {

Fft::Fft(std::size_t nSize) : m_nSize(nSize) {
    std::size_t nLength = nSize;
    for (; nLength >= 4; nLength /= 4) {
        Pass& pass = m_passes.emplace_back();
        pass.nQuarter = nLength / 4;
        for (int nPower = 1; nPower <= 3; ++nPower) {
            std::vector<double>& cosine = pass.cosine[nPower - 1];
            std::vector<double>& sine = pass.sine[nPower - 1];
            cosine.reserve(pass.nQuarter);
            sine.reserve(pass.nQuarter);
            const double dAngle = 2.0 * kPi * nPower / static_cast<double>(nLength);
            for (std::size_t j = 0; j < pass.nQuarter; ++j) {
                cosine.push_back(std::cos(dAngle * static_cast<double>(j)));
                sine.push_back(-std::sin(dAngle * static_cast<double>(j)));
            }
        }
    }
    m_bLastPair = nLength == 2;
}

std::size_t Fft::PlaceOf(std::size_t nFrequency) const {
    std::size_t nPlace = 0;
    for (std::size_t n = m_nSize; n > 1; n /= 2) {
        nPlace = nPlace * 2 + nFrequency % 2;
        nFrequency /= 2;
    }
    return nPlace;
}

namespace {

// Four points a quarter apart of a span of 4 * nQuarter.
struct Quarters {
    Quarters(double* p, std::size_t nQuarter)
        : p0(p), p1(p + nQuarter), p2(p + 2 * nQuarter), p3(p + 3 * nQuarter) {}
    double* __restrict p0;
    double* __restrict p1;
    double* __restrict p2;
    double* __restrict p3;
};

void PairPass(double* re, double* im, std::size_t nSize) {
    for (std::size_t i = 0; i < nSize; i += 2) {
        const double dReal = re[i] - re[i + 1];
        const double dImaginary = im[i] - im[i + 1];
        re[i] += re[i + 1];
        im[i] += im[i + 1];
        re[i + 1] = dReal;
        im[i + 1] = dImaginary;
    }
}

}  // namespace

void Fft::Forward(double* re, double* im) const {
    for (const Pass& pass : m_passes) {
        const std::size_t q = pass.nQuarter;
        const double* c1 = pass.cosine[0].data();
        const double* c2 = pass.cosine[1].data();
        const double* c3 = pass.cosine[2].data();
        const double* s1 = pass.sine[0].data();
        const double* s2 = pass.sine[1].data();
        const double* s3 = pass.sine[2].data();
        for (std::size_t nStart = 0; nStart < m_nSize; nStart += 4 * q) {
            const Quarters r(re + nStart, q);
            const Quarters i(im + nStart, q);
            for (std::size_t j = 0; j < q; ++j) {
                const double ar = r.p0[j] + r.p2[j], ai = i.p0[j] + i.p2[j];
                const double br = r.p1[j] + r.p3[j], bi = i.p1[j] + i.p3[j];
                const double cr = r.p0[j] - r.p2[j], ci = i.p0[j] - i.p2[j];
                const double dr = r.p1[j] - r.p3[j], di = i.p1[j] - i.p3[j];
                r.p0[j] = ar + br;
                i.p0[j] = ai + bi;
                const double er = ar - br, ei = ai - bi;
                r.p1[j] = er * c2[j] - ei * s2[j];
                i.p1[j] = er * s2[j] + ei * c2[j];
                const double fr = cr + di, fi = ci - dr;
                r.p2[j] = fr * c1[j] - fi * s1[j];
                i.p2[j] = fr * s1[j] + fi * c1[j];
                const double gr = cr - di, gi = ci + dr;
                r.p3[j] = gr * c3[j] - gi * s3[j];
                i.p3[j] = gr * s3[j] + gi * c3[j];
            }
        }
    }
    if (m_bLastPair) PairPass(re, im, m_nSize);
}

void Fft::Backward(double* re, double* im) const {
    if (m_bLastPair) PairPass(re, im, m_nSize);
    for (auto pass = m_passes.rbegin(); pass != m_passes.rend(); ++pass) {
        const std::size_t q = pass->nQuarter;
        const double* c1 = pass->cosine[0].data();
        const double* c2 = pass->cosine[1].data();
        const double* c3 = pass->cosine[2].data();
        const double* s1 = pass->sine[0].data();
        const double* s2 = pass->sine[1].data();
        const double* s3 = pass->sine[2].data();
        for (std::size_t nStart = 0; nStart < m_nSize; nStart += 4 * q) {
            const Quarters r(re + nStart, q);
            const Quarters i(im + nStart, q);
            for (std::size_t j = 0; j < q; ++j) {
                const double er = r.p1[j] * c2[j] + i.p1[j] * s2[j];
                const double ei = i.p1[j] * c2[j] - r.p1[j] * s2[j];
                const double fr = r.p2[j] * c1[j] + i.p2[j] * s1[j];
                const double fi = i.p2[j] * c1[j] - r.p2[j] * s1[j];
                const double gr = r.p3[j] * c3[j] + i.p3[j] * s3[j];
                const double gi = i.p3[j] * c3[j] - r.p3[j] * s3[j];
                const double ar = r.p0[j] + er, ai = i.p0[j] + ei;
                const double br = r.p0[j] - er, bi = i.p0[j] - ei;
                const double cr = fr + gr, ci = fi + gi;
                const double dr = fr - gr, di = fi - gi;
                r.p0[j] = ar + cr;
                i.p0[j] = ai + ci;
                r.p2[j] = ar - cr;
                i.p2[j] = ai - ci;
                r.p1[j] = br - di;
                i.p1[j] = bi + dr;
                r.p3[j] = br + di;
                i.p3[j] = bi - dr;
            }
        }
    }
}

}  // namespace filter
