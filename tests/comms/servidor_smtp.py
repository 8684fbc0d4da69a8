#!/usr/bin/python3
"""A real SMTP server on 127.0.0.1 for the mail tests (Debian's python3-aiosmtpd).

Prints the port it listens on, then serves until killed. Every message it accepts is read back with Python's
own mail parser and written as one JSON file into --carpeta (mensaje-N.json): envelope, headers as a reader
sees them, the text body, each attachment's name, type and bytes (base64), and the raw message.

Modes: acepta (default), calla-saludo (accepts connections and never greets), calla-datos (takes the whole
message and never answers it). --rechaza ADDRESS refuses that recipient with 550; --usuario and --password
require authentication with them (AUTH PLAIN or LOGIN, allowed without TLS here).
"""
import argparse
import asyncio
import base64
import json
import os
import sys
from email import policy
from email.parser import BytesParser

from aiosmtpd.smtp import SMTP, AuthResult

argumentos = argparse.ArgumentParser()
argumentos.add_argument("--carpeta", required=True)
argumentos.add_argument("--modo", default="acepta", choices=["acepta", "calla-saludo", "calla-datos"])
argumentos.add_argument("--rechaza", action="append", default=[])
argumentos.add_argument("--usuario")
argumentos.add_argument("--password")
opciones = argumentos.parse_args()


def direcciones(cabecera):
    return [d.addr_spec for d in cabecera.addresses] if cabecera is not None else None


def lee(contenido, envoltorio):
    m = BytesParser(policy=policy.default).parsebytes(contenido)
    cuerpo = m.get_body(preferencelist=("plain",))
    return {
        "mail_from": envoltorio.mail_from,
        "rcpt_tos": envoltorio.rcpt_tos,
        "from": str(m["From"]) if m["From"] is not None else None,
        "to": direcciones(m["To"]),
        "cc": direcciones(m["Cc"]),
        "bcc_header": m["Bcc"] is not None,
        "subject": str(m["Subject"]) if m["Subject"] is not None else None,
        "receipt_to": str(m["Disposition-Notification-To"]) if m["Disposition-Notification-To"] else None,
        "body": cuerpo.get_content() if cuerpo is not None else None,
        "body_charset": cuerpo.get_content_charset() if cuerpo is not None else None,
        "attachments": [
            {
                "filename": p.get_filename(),
                "content_type": p.get_content_type(),
                "data": base64.b64encode(p.get_payload(decode=True) or b"").decode("ascii"),
            }
            for p in m.iter_attachments()
        ],
        "defects": [type(d).__name__ for p in m.walk() for d in p.defects],
        "raw": contenido.decode("latin-1"),
    }


class Manejador:
    def __init__(self):
        self.cuenta = 0

    async def handle_RCPT(self, server, session, envelope, address, rcpt_options):
        if address in opciones.rechaza:
            return "550 5.1.1 <%s>: Recipient address rejected: User unknown" % address
        envelope.rcpt_tos.append(address)
        return "250 OK"

    async def handle_DATA(self, server, session, envelope):
        if opciones.modo == "calla-datos":
            await asyncio.sleep(3600)
        self.cuenta += 1
        destino = os.path.join(opciones.carpeta, "mensaje-%d.json" % self.cuenta)
        with open(destino + ".tmp", "w", encoding="utf-8") as f:
            json.dump(lee(envelope.original_content, envelope), f, ensure_ascii=False)
        os.replace(destino + ".tmp", destino)
        return "250 Message accepted for delivery"


def autentica(server, session, envelope, mechanism, auth_data):
    bien = (auth_data.login.decode("utf-8") == opciones.usuario and
            auth_data.password.decode("utf-8") == opciones.password)
    return AuthResult(success=bien, handled=False)


async def calla(lector, escritor):
    await asyncio.sleep(3600)


async def principal():
    bucle = asyncio.get_running_loop()
    if opciones.modo == "calla-saludo":
        servidor = await asyncio.start_server(calla, "127.0.0.1", 0)
    else:
        manejador = Manejador()
        extra = {}
        if opciones.usuario is not None:
            extra = dict(authenticator=autentica, auth_required=True, auth_require_tls=False)
        servidor = await bucle.create_server(
            lambda: SMTP(manejador, hostname="prueba.local", **extra), "127.0.0.1", 0)
    print(servidor.sockets[0].getsockname()[1], flush=True)
    async with servidor:
        await servidor.serve_forever()


if __name__ == "__main__":
    try:
        asyncio.run(principal())
    except KeyboardInterrupt:
        sys.exit(0)
