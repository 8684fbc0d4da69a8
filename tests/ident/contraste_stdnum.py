#!/usr/bin/python3
"""Control characters of random identity numbers and cadastral references worked out by python-stdnum,
a second implementation of the same public algorithms, for the C++ tests to compare with.

Prints one line per case: kind, number without its control, control characters.
"""
import random
import sys

from stdnum.es import cif, dni, nie, referenciacatastral

rng = random.Random(int(sys.argv[1]) if len(sys.argv) > 1 else 2024)
casos = int(sys.argv[2]) if len(sys.argv) > 2 else 300
DIGITOS = "0123456789"
LETRAS = "ABCDEFGHIJKLMNOPQRSTUVWXYZ"


def cifras(n):
    return "".join(rng.choice(DIGITOS) for _ in range(n))


for _ in range(casos):
    numero = cifras(8)
    print("NIF", numero, dni.calc_check_digit(numero))
    numero = rng.choice("XYZ") + cifras(7)
    print("NIE", numero, nie.calc_check_digit(numero))
    numero = rng.choice("ABCDEFGHJNPQRSUVW") + cifras(7)
    print("CIF", numero, cif.calc_check_digits(numero))
    # An urban reference (plot, map sheet, property) and a rustic one (municipality, sector, polygon, parcel).
    urbana = cifras(7) + rng.choice(LETRAS) + rng.choice(LETRAS) + cifras(4) + rng.choice(LETRAS) + cifras(4)
    print("RC", urbana, referenciacatastral.calc_check_digits(urbana))
    rustica = cifras(5) + rng.choice(LETRAS) + cifras(12)
    print("RC", rustica, referenciacatastral.calc_check_digits(rustica))
