"""The images of the sample office: the notaries' seals, signatures and flourishes, and a few scanned
pages of joined documents (see sample-office/README.md). Drawn from fixed shapes and written by small PNG
and baseline JPEG writers of the standard library alone, so every run gives the same bytes.

genera-oficina.py calls `escribe_imagenes(office folder)`.
"""

import math
import os
import struct
import zlib

# Digits of a 5 x 7 dot font, for the notary's number on the seals and the page numbers.
CIFRAS = {
    "1": ["..#..", ".##..", "..#..", "..#..", "..#..", "..#..", ".###."],
    "2": [".###.", "#...#", "....#", "...#.", "..#..", ".#...", "#####"],
    "3": [".###.", "#...#", "....#", "..##.", "....#", "#...#", ".###."],
}


def en_cifra(texto, x0, y0, escala, x, y):
    """Whether pixel (x, y) is ink of `texto` written from (x0, y0) with dots of `escala` pixels."""
    if y < y0 or y >= y0 + 7 * escala:
        return False
    columna = (x - x0) // escala
    letra, dentro = divmod(columna, 6)
    if x < x0 or letra >= len(texto) or dentro == 5:
        return False
    return CIFRAS[texto[letra]][(y - y0) // escala][dentro] == "#"


# ---------------------------------------------------------------------------------------------------
# PNG: 8-bit RGBA, no filter, zlib at level 9.

def png(ancho, alto, pixel):
    def trozo(tipo, datos):
        return struct.pack(">I", len(datos)) + tipo + datos + struct.pack(">I", zlib.crc32(tipo + datos))

    filas = bytearray()
    for y in range(alto):
        filas.append(0)
        for x in range(ancho):
            filas.extend(pixel(x, y))
    return (b"\x89PNG\r\n\x1a\n" + trozo(b"IHDR", struct.pack(">IIBBBBB", ancho, alto, 8, 6, 0, 0, 0))
            + trozo(b"IDAT", zlib.compress(bytes(filas), 9)) + trozo(b"IEND", b""))


# ---------------------------------------------------------------------------------------------------
# JPEG: baseline, one grey component, the standard luminance tables (ITU-T T.81 annex K).

QUANT = [16, 11, 10, 16, 24, 40, 51, 61, 12, 12, 14, 19, 26, 58, 60, 55, 14, 13, 16, 24, 40, 57, 69, 56,
         14, 17, 22, 29, 51, 87, 80, 62, 18, 22, 37, 56, 68, 109, 103, 77, 24, 35, 55, 64, 81, 104, 113, 92,
         49, 64, 78, 87, 103, 121, 120, 101, 72, 92, 95, 98, 112, 100, 103, 99]
ZIGZAG = sorted(range(64), key=lambda i: (i // 8 + i % 8, (i % 8) if (i // 8 + i % 8) % 2 == 0 else (i // 8)))
DC_BITS = [0, 1, 5, 1, 1, 1, 1, 1, 1, 0, 0, 0, 0, 0, 0, 0]
DC_VALS = list(range(12))
AC_BITS = [0, 2, 1, 3, 3, 2, 4, 3, 5, 5, 4, 4, 0, 0, 1, 0x7D]
AC_VALS = bytes.fromhex(
    "01020300041105122131410613516107227114328191a1082342b1c11552d1f02433627282090a161718191a25262728292a"
    "3435363738393a434445464748494a535455565758595a636465666768696a737475767778797a838485868788898a9293"
    "9495969798999aa2a3a4a5a6a7a8a9aab2b3b4b5b6b7b8b9bac2c3c4c5c6c7c8c9cad2d3d4d5d6d7d8d9dae1e2e3e4e5e6"
    "e7e8e9eaf1f2f3f4f5f6f7f8f9fa")
COS = [[math.cos((2 * x + 1) * u * math.pi / 16) * (math.sqrt(0.5) if u == 0 else 1) / 2 for x in range(8)]
       for u in range(8)]


def codigos_huffman(bits, valores):
    codigos, codigo, k = {}, 0, 0
    for longitud in range(1, 17):
        for _ in range(bits[longitud - 1]):
            codigos[valores[k]] = (codigo, longitud)
            codigo += 1
            k += 1
        codigo <<= 1
    return codigos


class Bits:
    def __init__(self):
        self.salida, self.acumulado, self.cuantos = bytearray(), 0, 0

    def pon(self, valor, longitud):
        self.acumulado = (self.acumulado << longitud) | (valor & ((1 << longitud) - 1))
        self.cuantos += longitud
        while self.cuantos >= 8:
            self.cuantos -= 8
            byte = (self.acumulado >> self.cuantos) & 0xFF
            self.salida.append(byte)
            if byte == 0xFF:
                self.salida.append(0)  # byte stuffing

    def cierra(self):
        if self.cuantos:
            self.pon(0x7F, 8 - self.cuantos)  # pad with ones
        return bytes(self.salida)


def jpeg(ancho, alto, gris):
    assert len(AC_VALS) == 162 and len(ZIGZAG) == 64
    dc, ac = codigos_huffman(DC_BITS, DC_VALS), codigos_huffman(AC_BITS, AC_VALS)
    bits, anterior = Bits(), 0

    def categoria(v):
        n = abs(v).bit_length()
        return n, (v if v >= 0 else v + (1 << n) - 1)

    for by in range(0, alto, 8):
        for bx in range(0, ancho, 8):
            bloque = [[gris(min(bx + x, ancho - 1), min(by + y, alto - 1)) - 128 for x in range(8)] for y in range(8)]
            filas = [[sum(COS[u][x] * bloque[y][x] for x in range(8)) for u in range(8)] for y in range(8)]
            f = [sum(COS[v][y] * filas[y][u] for y in range(8)) for v in range(8) for u in range(8)]
            q = [int(round(f[i] / QUANT[i])) for i in range(64)]
            z = [q[i] for i in ZIGZAG]
            n, extra = categoria(z[0] - anterior)
            anterior = z[0]
            bits.pon(*dc[n])
            bits.pon(extra, n)
            ceros = 0
            for v in z[1:]:
                if v == 0:
                    ceros += 1
                    continue
                while ceros > 15:
                    bits.pon(*ac[0xF0])
                    ceros -= 16
                n, extra = categoria(v)
                bits.pon(*ac[(ceros << 4) | n])
                bits.pon(extra, n)
                ceros = 0
            if ceros:
                bits.pon(*ac[0x00])

    def segmento(marca, datos):
        return b"\xff" + bytes([marca]) + struct.pack(">H", len(datos) + 2) + datos

    dqt = bytes([0]) + bytes(QUANT[i] for i in ZIGZAG)
    dht = bytes([0x00]) + bytes(DC_BITS) + bytes(DC_VALS) + bytes([0x10]) + bytes(AC_BITS) + AC_VALS
    return (b"\xff\xd8" + segmento(0xE0, b"JFIF\0\x01\x01\0\0\x01\0\x01\0\0") + segmento(0xDB, dqt)
            + segmento(0xC0, struct.pack(">BHHB", 8, alto, ancho, 1) + b"\x01\x11\x00") + segmento(0xC4, dht)
            + segmento(0xDA, b"\x01\x01\x00\x00\x3f\x00") + bits.cierra() + b"\xff\xd9")


# ---------------------------------------------------------------------------------------------------
# The drawings.

TINTA = (31, 58, 147, 255)  # the blue of a notary's stamp pad
VACIO = (0, 0, 0, 0)


def sello(notario, con_firma=False, copia=False):
    def pixel(x, y):
        r = math.hypot(x - 59.5, y - 59.5)
        if 52 <= r <= 57 or 44 <= r <= 46 or (copia and 36 <= r <= 37):
            return TINTA
        if en_cifra(notario, 50, 46, 4, x, y):
            return TINTA
        if con_firma and abs(y - (62 + 14 * math.sin(x / 7.0) * math.cos(x / 23.0))) < 1.4:
            return (10, 10, 60, 255)
        return VACIO
    return png(120, 120, pixel)


def firma():
    def pixel(x, y):
        trazo = 40 + 22 * math.sin(x / 9.0) * math.cos(x / 31.0) + (x - 100) * 0.08
        return (10, 10, 60, 255) if abs(y - trazo) < 1.6 and 12 <= x <= 188 else VACIO
    return png(200, 80, pixel)


def publicidad(notario):
    def pixel(x, y):
        if x < 3 or y < 3 or x > 296 or y > 56:
            return TINTA
        if en_cifra(notario, 140, 16, 4, x, y):
            return TINTA
        return (235, 240, 250, 255)
    return png(300, 60, pixel)


def rubrica():
    def gris(x, y):
        # A flourish: a lemniscate of Bernoulli drawn with a soft pen.
        u, v = (x - 80) / 60.0, (y - 40) / 60.0
        d = abs((u * u + v * v) ** 2 - 0.45 * (u * u - v * v))
        return 30 if d < 0.004 else 255
    return jpeg(160, 80, gris)


def pagina(numero):
    def gris(x, y):
        if en_cifra(str(numero), 54, 140, 2, x, y):
            return 40
        if 16 <= x <= 104 and 16 <= y <= 124 and (y - 16) % 9 < 3 and not (y > 110 and x > 70):
            return 150  # lines of text
        return 250
    return jpeg(120, 160, gris)


IMAGENES = [
    ("C/WORDZEB/IMAGENES/SELLO1.PNG", lambda: sello("1")),
    ("C/WORDZEB/IMAGENES/SELLO2.PNG", lambda: sello("2")),
    ("C/WORDZEB/IMAGENES/SELLO1COP.PNG", lambda: sello("1", copia=True)),
    ("C/WORDZEB/IMAGENES/SELLO2COP.PNG", lambda: sello("2", copia=True)),
    ("C/WORDZEB/IMAGENES/PUBLI1.PNG", lambda: publicidad("1")),
    ("C/WORDZEB/IMAGENES/PUBLI2.PNG", lambda: publicidad("2")),
    ("C/WORDZEB/IMAGENES/FIRMA1.PNG", firma),
    ("C/WORDZEB/IMAGENES/RUBRICA1.JPG", rubrica),
    ("C/WORDZEB/IMAGENES/SELLO_FIRMA1.PNG", lambda: sello("1", con_firma=True)),
    # The general folder of joined documents already holds two pages; dossier 15 of 2024 brings three.
    ("C/NODRIM/DOCUMENTOSUNIDOS/0001.jpg", lambda: pagina(1)),
    ("C/NODRIM/DOCUMENTOSUNIDOS/0002.jpg", lambda: pagina(2)),
    ("C/NODRIM/EXPEDIENTES/2024/000015/DU/PAGINA1.JPG", lambda: pagina(1)),
    ("C/NODRIM/EXPEDIENTES/2024/000015/DU/PAGINA2.JPG", lambda: pagina(2)),
    ("C/NODRIM/EXPEDIENTES/2024/000015/DU/PAGINA3.JPG", lambda: pagina(3)),
]


def escribe_imagenes(oficina):
    for relativa, dibujo in IMAGENES:
        ruta = os.path.join(oficina, *relativa.split("/"))
        os.makedirs(os.path.dirname(ruta), exist_ok=True)
        with open(ruta, "wb") as f:
            f.write(dibujo())
