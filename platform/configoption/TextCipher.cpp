// SPDX-FileCopyrightText: 2026 DataManager contributors
// SPDX-License-Identifier: BSD-3-Clause

#include <configoption/TextCipher.h>

#include <configoption/private/CipherKeys.h>
#include <configoption/private/SealedBytes.h>

#include <QByteArray>
#include <QDebug>

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

/// Whether the text comes back from UTF-8.
bool isValidUnicode(const QString& text)
{
    if (text.startsWith(QChar::ByteOrderMark)) {
        return false;
    }
    for (int i = 0; i < text.size(); ++i) {
        if (!text.at(i).isSurrogate()) {
            continue;
        }
        const bool isPair = text.at(i).isHighSurrogate() && i + 1 < text.size() && text.at(i + 1).isLowSurrogate();
        if (!isPair) {
            return false;
        }
        ++i;
    }
    return true;
}

QByteArray packText(const QString& text)
{
    if (isValidUnicode(text)) {
        return text.toUtf8().prepend(Utf8);
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

/// The sealed bytes of a text; empty when the text is no cipher text. Decoders of Base64 accept more spellings than the
/// one that is written, and those are refused: a strict decoder whose result has the length that belongs to the text
/// took every letter for six bits, so only bits behind the last byte are left to differ, and they stand in the last
/// four letters.
QByteArray sealedBytesOf(const QString& text)
{
    constexpr int groupLetters = 4;
    constexpr int groupBytes = 3;
    if (!text.startsWith(versionMark)) {
        return {};
    }
    const auto letters = text.midRef(versionMark.size());
    const auto result = QByteArray::fromBase64Encoding(letters.toLatin1(), QByteArray::AbortOnBase64DecodingErrors);
    const QByteArray& sealed = result.decoded;
    if (!result || letters.size() != (sealed.size() + groupBytes - 1) / groupBytes * groupLetters) {
        return {};
    }
    const QByteArray lastGroup = sealed.mid((sealed.size() - 1) / groupBytes * groupBytes).toBase64();
    return letters.endsWith(QLatin1String(lastGroup)) ? sealed : QByteArray();
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
