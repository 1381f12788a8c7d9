"""The spectral windows of the power spectrum: their weights and their magnitudes, by closed forms.

u runs from -1 to 1 over the transform's length, b counts bins of the spectrum from the middle."""
import math

import numpy as np

# Of the form a0 + a1 cos(pi k u) + ..., all positive: a cosine of n from 0 has the alternating signs.
COSINE_SUMS = {
    "rectangular": [1.0],
    "blackman": [0.42, 0.5, 0.08],
    "blackman_harris_3": [0.42323, 0.49755, 0.07922],
    "blackman_harris_4": [0.35875, 0.48829, 0.14128, 0.01168],
    "hamming": [0.54, 0.46],
    "von_hann": [0.5, 0.5],
}
# By the type's number.
NAMES = ["rectangular", "bartlett", "blackman", "blackman_harris_3", "blackman_harris_4", "cosine", "hamming",
         "kaiser", "poisson", "von_hann"]


def bessel_i0(x):
    """sum of ((x/2)^k / k!)^2."""
    x = np.asarray(x, dtype=float)
    term = np.ones_like(x)
    total = np.ones_like(x)
    for k in range(1, 200):
        term = term * (x / (2 * k)) ** 2
        total = total + term
        if np.all(term < 1e-17 * total):
            return total
    raise ValueError("out of the series' reach")


def weights(name, u, alpha=0.0):
    u = np.asarray(u, dtype=float)
    if name in COSINE_SUMS:
        return sum(a * np.cos(math.pi * k * u) for k, a in enumerate(COSINE_SUMS[name])) * np.ones_like(u)
    if name == "bartlett":
        return 1 - abs(u)
    if name == "cosine":
        return np.cos(math.pi * u / 2)
    if name == "kaiser":
        return bessel_i0(math.pi * alpha * np.sqrt(np.maximum(0.0, 1 - u * u))) / bessel_i0(math.pi * alpha)
    if name == "poisson":
        return np.exp(-alpha * abs(u))
    raise ValueError(name)


def transform(name, b, alpha=0.0):
    """The transform of the weights, signed; its scale is of no matter."""
    b = np.asarray(b, dtype=float)
    if name in COSINE_SUMS:
        total = np.zeros_like(b)
        for k, a in enumerate(COSINE_SUMS[name]):
            total = total + (a * np.sinc(b) if k == 0 else a / 2 * (np.sinc(b - k) + np.sinc(b + k)))
        return total
    if name == "bartlett":
        return np.sinc(b / 2) ** 2 / 2
    if name == "cosine":
        return (np.sinc(b - 0.5) + np.sinc(b + 0.5)) / 2
    if name == "kaiser":
        inside = alpha * alpha - b * b
        z = math.pi * np.sqrt(abs(inside))
        safe = np.where(z == 0, 1.0, z)
        return np.where(z == 0, 1.0, np.where(inside > 0, np.sinh(safe) / safe, np.sin(safe) / safe))
    if name == "poisson":
        return ((alpha - math.exp(-alpha) * (alpha * np.cos(math.pi * b) - math.pi * b * np.sin(math.pi * b)))
                / (alpha ** 2 + (math.pi * b) ** 2))
    raise ValueError(name)


def decibels(name, b, alpha=0.0):
    with np.errstate(divide="ignore"):
        return 20 * np.log10(abs(transform(name, b, alpha) / transform(name, 0.0, alpha)))


def check():
    """Compares weights and transforms with scipy's windows and their sums."""
    from scipy.signal import windows
    n = 4096
    u = 2 * np.arange(n) / n - 1
    theirs = {"rectangular": windows.boxcar(n, False), "bartlett": windows.bartlett(n, False),
              "blackman": windows.blackman(n, False), "blackman_harris_4": windows.blackmanharris(n, False),
              "blackman_harris_3": windows.general_cosine(n, [0.42323, 0.49755, 0.07922], False),
              "cosine": np.sin(math.pi * np.arange(n) / n), "hamming": windows.hamming(n, False),
              "von_hann": windows.hann(n, False)}
    cases = [(name, 0.0, w) for name, w in theirs.items()]
    for alpha in (0.5, 3.0, 10.0):
        cases.append(("kaiser", alpha, windows.kaiser(n, math.pi * alpha, False)))
        cases.append(("poisson", alpha, windows.exponential(n, None, n / 2 / alpha, False)))
    b = np.array([0.0, 0.3, 1.0, 2.5, 7.2, 15.5])
    for name, alpha, w in cases:
        assert abs(weights(name, u, alpha) - w).max() < 1e-12, name
        direct = np.array([(w * np.exp(-2j * math.pi * k * np.arange(n) / n)).sum() for k in b])
        ours = transform(name, b, alpha) / transform(name, 0.0, alpha)
        assert abs(abs(direct / direct[0]) - abs(ours)).max() < 2e-5, name
