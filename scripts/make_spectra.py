#!/usr/bin/env python3
# SPDX-License-Identifier: GPL-3.0-or-later
# SPDX-FileCopyrightText: The System Definition developers
"""Makes the sample project's lamp and optics files.

    scripts/make_spectra.py [FOLDER]        (default: samples/three-color-lamp)

writes FOLDER/Lamps/*.lmp and FOLDER/Optics/*.opt. The spectra are computed, not measured:

halogen-3200k.lmp    Planck's law at 3200 K, with the exact constants of the SI (2019).
uhp-mercury.lmp      The visible lines of neutral mercury at the wavelengths of the NIST Atomic
                     Spectra Database, broadened and set on a continuum as in an arc of some 200
                     bar. Heights, widths and continuum are not measured but set to resemble what
                     is published of such lamps (for instance G. Derra et al., "UHP lamp systems
                     for projection applications", J. Phys. D: Appl. Phys. 38 (2005) 2995). The
                     lumens against the aperture are of the form 1 - exp(-aperture / 2.2).
dichroic-yellow.opt  A long-wave pass stack glass (H/2 L H/2)^9 air at 455 nm of titania and silica,
                     by the characteristic matrices of H. A. Macleod, "Thin-Film Optical Filters",
                     without dispersion, at normal incidence.
projection-lens.opt  Twenty-two glass surfaces with a quarter wave of magnesium fluoride at 550 nm,
                     by the same matrices, and an absorption of the glass that grows by e every
                     12 nm toward the blue (the Urbach form of an absorption edge).
"""

import cmath
import math
import pathlib
import sys

WAVELENGTHS = range(380, 781)  # nm

# SI, exact since 2019.
PLANCK = 6.62607015e-34
LIGHT_SPEED = 299792458.0
BOLTZMANN = 1.380649e-23

# Refractive indices: titania and silica as evaporated films, magnesium fluoride, crown glass.
TITANIA, SILICA, FLUORIDE, GLASS, AIR = 2.35, 1.46, 1.38, 1.52, 1.0

# Neutral mercury: wavelength in nm, height against the strongest line, half width in nm.
MERCURY_LINES = [
    (404.66, 0.62, 2.2),
    (407.78, 0.22, 2.2),
    (435.83, 1.00, 2.8),
    (546.07, 0.94, 2.6),
    (576.96, 0.60, 3.4),
    (579.07, 0.60, 3.4),
]


def planck(nm, kelvin):
    """Spectral radiance of a black body, W per steradian and cubic meter."""
    meter = nm * 1e-9
    exponent = PLANCK * LIGHT_SPEED / (meter * BOLTZMANN * kelvin)
    return 2 * PLANCK * LIGHT_SPEED**2 / meter**5 / math.expm1(exponent)


def mercury(nm):
    """Lorentz lines on a continuum that falls off below 400 nm and slowly toward the red."""
    continuum = 0.16 * math.exp(-((nm - 560) / 260) ** 2) / (1 + math.exp((395 - nm) / 6))
    lines = sum(h / (1 + ((nm - center) / width) ** 2) for center, h, width in MERCURY_LINES)
    return continuum + lines


def transmission(nm, layers, incident, substrate):
    """Intensity transmission of a stack; layers are (index, thickness in nm), light side first."""
    b, c = 1.0 + 0j, substrate + 0j
    for index, thickness in reversed(layers):
        phase = 2 * math.pi * index * thickness / nm
        cosine, sine = cmath.cos(phase), 1j * cmath.sin(phase)
        b, c = b * cosine + c * sine / index, b * sine * index + c * cosine
    return 4 * incident * substrate / abs(incident * b + c) ** 2


def dichroic(nm):
    design = 455.0
    half_high = (TITANIA, design / TITANIA / 8)
    low = (SILICA, design / SILICA / 4)
    stack = [half_high, low, half_high] * 9
    back = transmission(nm, [(FLUORIDE, 550 / FLUORIDE / 4)], AIR, GLASS)
    return transmission(nm, stack, AIR, GLASS) * back


def projection_lens(nm):
    surface = transmission(nm, [(FLUORIDE, 550 / FLUORIDE / 4)], AIR, GLASS)
    glass = math.exp(-0.9 * math.exp((400 - nm) / 12))
    return surface**22 * glass


def points(curve):
    return [f"{nm} {curve(nm):.6f}" for nm in WAVELENGTHS]


def relative(curve):
    """The curve against its own peak."""
    peak = max(curve(nm) for nm in WAVELENGTHS)
    return lambda nm: curve(nm) / peak


def apertures(lumens, scale):
    steps = [n / 2 for n in range(1, 13)]
    return [f"{a:.1f} {lumens * (1 - math.exp(-a / scale)):.0f}" for a in steps]


def write(path, lines):
    path.parent.mkdir(parents=True, exist_ok=True)
    head = ["# Computed by scripts/make_spectra.py, which names its sources."]
    path.write_text("\n".join(head + lines) + "\n", encoding="utf-8")
    print(path)


def main():
    folder = pathlib.Path(sys.argv[1] if len(sys.argv) > 1 else "samples/three-color-lamp")
    write(folder / "Lamps" / "halogen-3200k.lmp",
          ["LAMP_NAME Halogen 3200 K", "LAMP_POWER 250", "TOTAL_LUMENS 8500", "OPTICS_FLAG 0",
           "RESPONSE_DATA_START", *points(relative(lambda nm: planck(nm, 3200))),
           "RESPONSE_DATA_END"])
    write(folder / "Lamps" / "uhp-mercury.lmp",
          ["LAMP_NAME UHP mercury 200 W", "LAMP_POWER 200", "TOTAL_LUMENS 12000", "OPTICS_FLAG 0",
           "RESPONSE_DATA_START", *points(relative(mercury)), "RESPONSE_DATA_END",
           "LUMENS_VS_APERTURE_START", *apertures(12000, 2.2), "LUMENS_VS_APERTURE_END"])
    write(folder / "Optics" / "dichroic-yellow.opt",
          ["OPTICS_NAME Dichroic, yellow", "OPTICS_DATA_START", *points(dichroic),
           "OPTICS_DATA_END"])
    write(folder / "Optics" / "projection-lens.opt",
          ["OPTICS_NAME Projection lens", "OPTICS_DATA_START", *points(projection_lens),
           "OPTICS_DATA_END"])


if __name__ == "__main__":
    main()
