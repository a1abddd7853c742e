"""A mail server on the loopback interface, for one test: well behaved, or bad in one way.

usage: smtpServer.py MODE FOLDER [CERTIFICATE KEY]

Prints its port, then serves until it is ended. A well-behaved server (good, auth, startTls) keeps each message as
FOLDER/1.eml, 2.eml and so on; startTls takes no message before the connection is encrypted.
"""

import asyncio
import socket
import ssl
import sys

from aiosmtpd.smtp import SMTP, AuthResult

mode, folder = sys.argv[1:3]


class Keeper:
    kept = 0

    async def handle_DATA(self, server, session, envelope):
        Keeper.kept += 1
        with open(f"{folder}/{Keeper.kept}.eml", "wb") as message:
            message.write(f"X-Envelope: {envelope.mail_from} {envelope.rcpt_tos}\r\n".encode())
            message.write(envelope.original_content)
        return "250 kept"


def known(server, session, envelope, mechanism, data):
    return AuthResult(success=data.login == b"firm" and data.password == b"secret")


def options():
    if mode == "auth":
        return {"authenticator": known, "auth_required": True, "auth_require_tls": False}
    if mode == "startTls":
        context = ssl.create_default_context(ssl.Purpose.CLIENT_AUTH)
        context.load_cert_chain(*sys.argv[3:5])
        return {"tls_context": context, "require_starttls": True}
    return {}


async def serve():
    loop = asyncio.get_running_loop()
    server = await loop.create_server(lambda: SMTP(Keeper(), **options()), "127.0.0.1", 0)
    print(server.sockets[0].getsockname()[1], flush=True)
    await server.serve_forever()


def converse(connection):
    if mode == "hang":
        return connection.recv(1)
    if mode == "garbage":
        connection.sendall(b"\x00\xff what is this\r\n" * 20)
        return connection.recv(1)
    lines = connection.makefile("rb")

    def say(text):
        connection.sendall(text.encode() + b"\r\n")

    say("220 test")
    while line := lines.readline():
        command = line[:4].upper()
        if command == b"RCPT" and mode == "refuseRecipient":
            say("550 5.1.1 nobody of that name")
        elif command == b"RCPT" and mode == "busy":
            say("451 4.7.1 come back later")
        elif command == b"DATA":
            say("354 go on")
            if mode == "closeInMessage":
                lines.readline()
                return
            while lines.readline() not in (b".\r\n", b""):
                pass
            if mode == "closeAfterMessage":
                return
            if mode == "silentAfterMessage":
                connection.recv(1)
                return
            say("554 5.7.1 not this one" if mode == "refuseMessage" else "250 kept")
        elif command == b"QUIT":
            return say("221 bye")
        else:
            say("250 test")


def serveBadly():
    listener = socket.create_server(("127.0.0.1", 0))
    print(listener.getsockname()[1], flush=True)
    while True:
        connection, _ = listener.accept()
        with connection:
            try:
                converse(connection)
            except OSError:
                pass


if mode in ("good", "auth", "startTls"):
    asyncio.run(serve())
else:
    serveBadly()
