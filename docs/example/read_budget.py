#!/usr/bin/env python3
# SPDX-License-Identifier: GPL-3.0-or-later
"""read_budget.py FILE [PASSPHRASE-FILE]: prints what a budget file of either edition holds.

Needs nothing but docs/file-format.md, and PyNaCl for an encrypted file: it checks the
checksum, then prints each table with amounts in decimal digits and days in ISO 8601.
"""
import hashlib
import json
import re
import sqlite3
import struct
import sys
import unicodedata
from decimal import Decimal

DAYS_BEFORE_CHRIST = 1721426  # the Julian day of 0001-01-01


def opened(image):
    database = sqlite3.connect(":memory:")
    database.text_factory = lambda text: text.decode("utf-8", "surrogatepass")
    database.deserialize(image)
    return database


def passphrase_bytes(content):
    """As the key is made from them: a line break at the end does not count, and texts that
    look alike are one."""
    content = content.removesuffix(b"\n").removesuffix(b"\r")
    try:
        text = unicodedata.normalize("NFC", content.decode())
    except UnicodeDecodeError:
        return content
    return "".join(" " if unicodedata.category(c) == "Zs" else c for c in text).encode()


def decrypted(data, passphrase):
    """The budget file in an encrypted one."""
    from nacl import bindings as nacl, exceptions

    form, passes, memory = struct.unpack(">IIQ", data[16:32])
    if form != 1 or hashlib.sha256(data[:152]).digest() != data[152:184]:
        sys.exit("The header is damaged.")
    if passes > 16 or memory > 256 << 20:
        sys.exit("The passphrase would take too much time or memory.")
    wrapping = nacl.crypto_pwhash_alg(32, passphrase, data[32:48], passes, memory,
                                      nacl.crypto_pwhash_ALG_ARGON2ID13)
    open_box = nacl.crypto_aead_xchacha20poly1305_ietf_decrypt
    try:
        key = open_box(data[72:120], data[20:48], data[48:72], wrapping)
    except exceptions.CryptoError:
        sys.exit("The passphrase is wrong.")

    def use(name):
        return hashlib.blake2b(b"kivbudget " + name, key=key, digest_size=32).digest()

    stream = 184 + struct.unpack(">I", data[144:148])[0]
    label = open_box(data[208:stream], data[120:144], data[184:208], use(b"label"))
    label = label.rstrip(b"\0").removesuffix(b"\x80")
    state = nacl.crypto_secretstream_xchacha20poly1305_state()
    nacl.crypto_secretstream_xchacha20poly1305_init_pull(state, data[120:144], use(b"stream"))
    content, tag = b"", None
    for begin in range(stream, len(data), 65536 + 17):
        part, tag = nacl.crypto_secretstream_xchacha20poly1305_pull(
            state, data[begin:begin + 65536 + 17])
        content += part
    if tag != nacl.crypto_secretstream_xchacha20poly1305_TAG_FINAL:
        sys.exit("The end is missing.")
    if label and label not in content:
        sys.exit("The label is another version's.")
    return content


def second_edition(data):
    """The database and what the version tells about itself."""
    magic, image, label, _ = struct.unpack(">8s3Q", data[-64:-32])
    if (magic != b"kivbseal" or image + label + 64 != len(data)
            or hashlib.sha256(data[:-32]).digest() != data[-32:]):
        sys.exit("The checksum is wrong.")
    return opened(data[:image]), json.loads(data[image:image + label])


def first_edition(data):
    database = opened(data)
    dump = b"kiv-budget 1\n"
    for table in names(database):
        if table == "seal":
            continue
        dump += b"table " + table.encode() + b"\n"
        for row in database.execute(f"SELECT * FROM {table} ORDER BY 1"):
            for value in row:
                text = str(value).encode("utf-8", "surrogatepass")
                dump += (b"-" if value is None else b"i%b;" % text if isinstance(value, int)
                         else b"t%d:%b" % (len(text), text))
            dump += b"\n"
    (digest,) = database.execute("SELECT sha256 FROM seal").fetchone()
    if hashlib.sha256(dump).hexdigest() != digest:
        sys.exit("The checksum is wrong.")
    return database, None


def names(database):
    return [name for (name,) in database.execute("SELECT name FROM sqlite_schema ORDER BY rowid")]


def day(number):
    """ISO 8601, also before and after the years that datetime knows."""
    # The algorithm of E. G. Richards for the Gregorian calendar; Qt's has no year 0.
    shifted = number + 1401 + (4 * number + 274277) // 146097 * 3 // 4 - 38
    cycle = 4 * shifted + 3
    rest = 5 * (cycle % 1461 // 4) + 2
    month = (rest // 153 + 2) % 12 + 1
    year = cycle // 1461 - 4716 + (14 - month) // 12
    year -= year <= 0
    return f"{'-' if year < 0 else ''}{abs(year):04}-{month:02}-{rest % 153 // 5 + 1:02}"


def rows(database, table):
    """Each row as a dictionary of readable values."""
    currencies = {}
    if "currencies" in names(database):
        currencies = {key: (code, digits) for key, code, digits
                      in database.execute("SELECT * FROM currencies")}
    accounts = dict(database.execute("SELECT number, currency FROM accounts"))
    descriptions = {}
    cursor = database.execute(f"SELECT * FROM {table} ORDER BY 1")
    for values in cursor:
        row = dict(zip((column[0] for column in cursor.description), values))
        of = {"balance": "currency", "amount": "currency", "left_over": "left_over_currency",
              "total": "total_currency", "expected": "expected_currency"}
        key = {name: row.get(currency) for name, currency in of.items()}
        key["debit_amount"] = accounts.get(row.get("debit"))
        key["credit_amount"] = accounts.get(row.get("credit"))
        for name, value in row.items():
            if name in key and isinstance(value, int):
                digits = currencies[key[name]][1]
                row[name] = format((Decimal(value) / 10 ** digits).normalize(), "f")
            elif name.endswith("currency") and isinstance(value, int):
                row[name] = currencies[value][0]
            elif re.fullmatch("(next_)?date|reconciled_on|day", name) and isinstance(value, int):
                row[name] = day(value)
        if table == "transactions":
            if isinstance(row["description"], int):
                row["description"] = descriptions[row["description"]]
            descriptions[row["number"]] = row["description"]
        yield row


def main():
    data = open(sys.argv[1], "rb").read()
    if data[:16] == b"kivbudget locked":
        data = decrypted(data, passphrase_bytes(open(sys.argv[2], "rb").read()))
    if data[:16] != b"SQLite format 3\0" or data[68:72] != b"kivb":
        sys.exit("This is no budget file.")
    edition = struct.unpack(">I", data[60:64])[0]
    database, label = {1: first_edition, 2: second_edition}[edition](data)
    if label:
        print("version", json.dumps(label), file=sys.stderr)
    for table in names(database):
        if table not in ("seal", "currencies"):
            for row in rows(database, table):
                print(table, json.dumps(row))


main()
