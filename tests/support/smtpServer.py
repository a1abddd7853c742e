"""A mail server on the loopback interface, for one test: well behaved, or bad in one way.

usage: smtpServer.py MODE FOLDER [CERTIFICATE KEY]

Prints its port, then serves until it is ended. A well-behaved server (good, auth, startTls, tls) keeps each message as
FOLDER/1.eml, 2.eml and so on; startTls takes no message before the connection is encrypted, tls is from the first byte.
A bad one writes the commands that it gets into FOLDER/commands.
"""

import asyncio
import base64
import socket
import ssl
import sys

from aiosmtpd.smtp import SMTP, AuthResult

mode, folder = sys.argv[1:3]


class Keeper:
    kept = 0

    async def handle_DATA(self, server, connection, envelope):
        Keeper.kept += 1
        with open(f"{folder}/{Keeper.kept}.eml", "wb") as message:
            message.write(f"X-Envelope: {envelope.mail_from} {envelope.rcpt_tos}\r\n".encode())
            message.write(envelope.original_content)
        return "250 kept"


def known(server, connection, envelope, mechanism, data):
    # What is not "handled" here the server answers itself.
    return AuthResult(success=data.login == b"firm" and data.password == b"secret", handled=False)


def ownCertificate():
    context = ssl.create_default_context(ssl.Purpose.CLIENT_AUTH)
    context.load_cert_chain(*sys.argv[3:5])
    return context


def options():
    signIn = {"authenticator": known, "auth_required": True}
    if mode in ("auth", "tls"):
        return {**signIn, "auth_require_tls": False}
    if mode == "startTls":
        return {**signIn, "tls_context": ownCertificate(), "require_starttls": True}
    return {}


async def serve():
    loop = asyncio.get_running_loop()
    encryption = ownCertificate() if mode == "tls" else None
    server = await loop.create_server(lambda: SMTP(Keeper(), **options()), "127.0.0.1", 0, ssl=encryption)
    print(server.sockets[0].getsockname()[1], flush=True)
    await server.serve_forever()


def converse(connection):
    """Misbehaves at the point that the mode names, and is well behaved up to there."""

    def say(text):
        connection.sendall(text.encode() + b"\r\n")

    def talkGarbage():
        connection.sendall(b"\x00\xff what is this\r\n" * 20)

    def waitUntilTheOtherEnds():
        while connection.recv(4096):
            pass

    if mode == "hang":
        return waitUntilTheOtherEnds()
    if mode == "close":
        return
    if mode == "garbage":
        talkGarbage()
        return waitUntilTheOtherEnds()
    if mode == "refuse":
        say("554 5.3.2 no mail here")
        return waitUntilTheOtherEnds()
    lines = connection.makefile("rb")
    say("220 test")
    while line := lines.readline():
        with open(f"{folder}/commands", "ab") as commands:
            commands.write(line)
        command = line[:4].upper()
        if command == b"EHLO" and mode == "tellPassword":
            say("250-test")
            say("250 AUTH PLAIN")
        elif command in (b"EHLO", b"HELO") and mode == "refuseGreeting":
            say("504 5.7.1 not from here")
        elif command == b"AUTH" and mode == "tellPassword":
            say("334 ")
            secret = lines.readline().strip()
            say(f"535 5.7.8 no good: {secret.decode()}{base64.b64decode(secret).decode()}".replace("\0", " "))
        elif command == b"RCPT" and mode == "refuseRecipient":
            say("550 5.1.1 nobody of that name")
        elif command == b"RCPT" and mode == "busy":
            say("451 4.7.1 come back later")
        elif command == b"RCPT" and mode == "hangAtRecipient":
            return waitUntilTheOtherEnds()
        elif command == b"RCPT" and mode == "garbageAtRecipient":
            talkGarbage()
            return waitUntilTheOtherEnds()
        elif command == b"DATA" and mode == "closeBeforeMessage":
            return
        elif command == b"DATA" and mode == "refuseData":
            say("452 4.3.1 no room")
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
                return waitUntilTheOtherEnds()
            if mode == "garbageAfterMessage":
                talkGarbage()
                return waitUntilTheOtherEnds()
            say(answersToMessage.get(mode, "250 kept"))
        elif command == b"QUIT" and mode == "hangAtFarewell":
            return waitUntilTheOtherEnds()
        elif command == b"QUIT":
            return say("221 bye")
        else:
            say("250 test")


answersToMessage = {"refuseMessage": "554 5.7.1 not this one", "postponeMessage": "451 4.3.0 try again"}


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


if mode in ("good", "auth", "startTls", "tls"):
    asyncio.run(serve())
else:
    serveBadly()
