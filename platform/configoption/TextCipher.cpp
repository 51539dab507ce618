// SPDX-FileCopyrightText: 2026 DataManager contributors
// SPDX-License-Identifier: BSD-3-Clause

#include <configoption/TextCipher.h>

#include <configoption/private/CipherKeys.h>
#include <configoption/private/SealedBytes.h>

#include <QByteArray>
#include <QDebug>

#include <cstring>

namespace ConfigOption {

namespace {

const QLatin1String versionMark("DMTC1:");
// Two bytes a code unit, then four Base64 digits for three bytes: stays below the 2^31 bytes of a QByteArray.
constexpr int maximumLength = 250000000;

/// The first byte tells how the text follows. UTF-8 takes half the room, but loses surrogates that stand alone and a
/// leading byte-order mark.
enum TextForm : char
{
    Utf8 = '8',
    Utf16 = 'W'
};

QByteArray packText(const QString& text)
{
    const QByteArray utf8 = text.toUtf8();
    if (QString::fromUtf8(utf8) == text) {
        return Utf8 + utf8;
    }
    QByteArray packed(1 + text.size() * 2, Qt::Uninitialized);
    packed[0] = Utf16;
    for (int i = 0; i < text.size(); ++i) {
        packed[1 + 2 * i] = char(text.at(i).cell());
        packed[2 + 2 * i] = char(text.at(i).row());
    }
    return packed;
}

QString unpackText(const QByteArray& packed)
{
    if (packed.at(0) == Utf8) {
        return QString::fromUtf8(packed.constData() + 1, packed.size() - 1);
    }
    QString text((packed.size() - 1) / 2, Qt::Uninitialized);
    for (int i = 0; i < text.size(); ++i) {
        text[i] = QChar(uchar(packed.at(1 + 2 * i)), uchar(packed.at(2 + 2 * i)));
    }
    return text;
}

QByteArray versionBytes()
{
    return {versionMark.data(), versionMark.size()};
}

QString textOf(const QByteArray& sealed)
{
    return versionMark + QLatin1String(sealed.toBase64());
}

/// The sealed bytes of a text; empty when the text is no cipher text. Comparing with what the bytes are written as
/// refuses the spellings that Base64 decoders accept beside the one that is written.
QByteArray sealedBytesOf(const QString& text)
{
    if (!text.startsWith(versionMark)) {
        return {};
    }
    const QByteArray sealed = QByteArray::fromBase64(text.midRef(versionMark.size()).toLatin1());
    return textOf(sealed) == text ? sealed : QByteArray();
}

} // namespace

TextCipher* TextCipher::getInstance()
{
    static TextCipher* const instance = new TextCipher;
    return instance;
}

QString TextCipher::encryptData_CBC(QString text)
{
    const CipherKeys* const keys = text.size() <= maximumLength ? cipherKeys() : nullptr;
    const QByteArray sealed = keys == nullptr ? QByteArray() : SealedBytes::seal(packText(text), versionBytes(), *keys);
    if (sealed.isEmpty()) {
        qDebug() << "Encrypt text fail!";
        return {};
    }
    return textOf(sealed);
}

QString TextCipher::decryptData_CBC(QString text)
{
    const CipherKeys* const keys = cipherKeys();
    QByteArray packed;
    if (keys == nullptr || !SealedBytes::open(sealedBytesOf(text), versionBytes(), *keys, packed)) {
        qDebug() << "Decrypt text fail: it was not encrypted with this key.";
        return {};
    }
    return unpackText(packed);
}

} // namespace ConfigOption
