#include "sigproc/SpectrumWindows.h"

#include <algorithm>

#include "sigproc_ids.h"

namespace {

constexpr SpectralWindow kWindows[] = {
    {0, IDS_WINDOW_NONE, "EQ_RECTANGULAR_WINDOW"},
    {1, IDS_WINDOW_BARTLETT, "EQ_BARTLETT_WINDOW"},
    {2, IDS_WINDOW_BLACKMAN, "EQ_BLACKMAN_WINDOW"},
    {3, IDS_WINDOW_BLACKMAN_HARRIS_3, "EQ_BLACKMANHARRIS3_WINDOW"},
    {4, IDS_WINDOW_BLACKMAN_HARRIS_4, "EQ_BLACKMANHARRIS4_WINDOW"},
    {5, IDS_WINDOW_COSINE, "EQ_COSINE_WINDOW"},
    {6, IDS_WINDOW_HAMMING, "EQ_HAMMING_WINDOW"},
    {kKaiserWindow, IDS_WINDOW_KAISER, "EQ_KAISER_WINDOW"},
    {kPoissonWindow, IDS_WINDOW_POISSON, "EQ_POISSON_WINDOW"},
    {9, IDS_WINDOW_VON_HANN, "EQ_VONHANN_WINDOW"},
};

int SeriesIndex(double dAlpha) {
    return static_cast<int>(std::clamp(dAlpha, 0.0, 10.0));
}

}  // namespace

std::span<const SpectralWindow> SpectralWindows() {
    return kWindows;
}

const SpectralWindow* FindSpectralWindow(std::int32_t eType) {
    const auto found =
        std::find_if(std::begin(kWindows), std::end(kWindows),
                     [eType](const SpectralWindow& window) { return window.eType == eType; });
    return found == std::end(kWindows) ? nullptr : found;
}

WindowPictures PicturesOf(std::int32_t eType, double dKaiserAlpha, double dPoissonAlpha) {
    if (eType == kKaiserWindow) {
        const int nIndex = SeriesIndex(dKaiserAlpha);
        return {IDB_KAISER_SHAPE_FIRST + nIndex, IDB_KAISER_MAGNITUDE_FIRST + nIndex};
    }
    if (eType == kPoissonWindow) {
        const int nIndex = SeriesIndex(dPoissonAlpha);
        return {IDB_POISSON_SHAPE_FIRST + nIndex, IDB_POISSON_MAGNITUDE_FIRST + nIndex};
    }
    return {IDB_WINDOW_SHAPE_FIRST + eType, IDB_WINDOW_MAGNITUDE_FIRST + eType};
}
