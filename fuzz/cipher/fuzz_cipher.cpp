// SPDX-FileCopyrightText: 2026 DataManager contributors
// SPDX-License-Identifier: BSD-3-Clause

// Any bytes as a cipher text: refused as a whole, unless they are what the documented form makes with the key. And any
// bytes as a text: comes back, and is refused once a bit, the length or the order of the cipher text is changed.

#include "FuzzInput.h"

#include <configoption/TextCipher.h>

#include <QtGlobal>

#include <openssl/evp.h>
#include <openssl/hmac.h>

#include <array>

namespace {

using ConfigOption::TextCipher;

const char secret[] = "a secret for fuzzing";
const char mark[] = "DMTC1:";
constexpr int vectorSize = 16;
constexpr int tagSize = 32;

int refusals = 0;

void countRefusal(QtMsgType, const QMessageLogContext&, const QString& line)
{
    require(line == QLatin1String("Decrypt text fail: it was not encrypted with this key."),
            "only refusals are logged");
    ++refusals;
}

/// The deciphered text; `isRefused` tells whether there is none.
QString deciphered(const QString& text, bool& isRefused)
{
    const int before = refusals;
    QString plain = TextCipher::getInstance()->decryptData_CBC(text);
    isRefused = refusals > before;
    require(!isRefused || plain.isEmpty(), "a refused text gives nothing");
    return plain;
}

/// Written from the description of the form, with OpenSSL's one-call functions.
bool hasTag(const QString& text)
{
    static const auto keys = [] {
        std::array<unsigned char, 64> bytes{};
        PKCS5_PBKDF2_HMAC(secret, sizeof secret - 1, reinterpret_cast<const unsigned char*>("DataManager text cipher"),
                          23, 100000, EVP_sha256(), int(bytes.size()), bytes.data());
        return bytes;
    }();
    const QByteArray letters = text.toLatin1();
    const QByteArray sealed = QByteArray::fromBase64(letters.mid(sizeof mark - 1));
    if (!letters.startsWith(mark) || sealed.size() < vectorSize + tagSize || mark + sealed.toBase64() != letters) {
        return false;
    }
    const QByteArray message = mark + sealed.left(sealed.size() - tagSize);
    std::array<unsigned char, tagSize> tag{};
    unsigned int size = 0;
    HMAC(EVP_sha256(), keys.data() + 32, 32, reinterpret_cast<const unsigned char*>(message.constData()),
         std::size_t(message.size()), tag.data(), &size);
    return sealed.endsWith(QByteArray::fromRawData(reinterpret_cast<const char*>(tag.data()), tagSize));
}

void requireRefusal(const QString& text, const char* what)
{
    bool isRefused = false;
    deciphered(text, isRefused);
#ifdef FUZZ_DEFECT
    isRefused = false;
#endif
    require(isRefused, what);
}

void decipherForeign(const QString& text)
{
    bool isRefused = false;
    const QString plain = deciphered(text, isRefused);
    require(isRefused != hasTag(text), "exactly the texts of this key are taken");
    if (!isRefused) {
        require(deciphered(TextCipher::getInstance()->encryptData_CBC(plain), isRefused) == plain, "it comes back");
    }
}

void changeCipherText(const QString& text, std::uint32_t place)
{
    const QString cipherText = TextCipher::getInstance()->encryptData_CBC(text);
    bool isRefused = false;
    require(deciphered(cipherText, isRefused) == text && !isRefused, "every text comes back");
    require(TextCipher::getInstance()->encryptData_CBC(text) != cipherText, "no two cipher texts are alike");
    const int position = int(place / 16 % unsigned(cipherText.size()));
    QString flipped = cipherText;
    flipped[position] = QChar(flipped.at(position).unicode() ^ (1U << place % 16));
    requireRefusal(flipped, "a flipped bit is refused");
    requireRefusal(cipherText.left(position), "a shorter text is refused");
    requireRefusal(cipherText + cipherText.at(position), "a longer text is refused");
    requireRefusal(cipherText.mid(position) + cipherText.left(position) + QLatin1Char('='), "a turned text is refused");
    requireRefusal(text, "a plain text is refused");
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    static const bool isPrepared = qputenv("DATAMANAGER_CIPHER_KEY", secret) && qInstallMessageHandler(countRefusal);
    require(isPrepared, "the key can be set");
    FuzzInput input(data, size);
    if (input.take<char>() == 'w') {
        const auto place = input.take<std::uint32_t>();
        QString text;
        while (!input.isEmpty()) {
            text += input.takeText();
        }
        if (!hasTag(text)) {
            changeCipherText(text, place);
        }
    } else {
        const QByteArray text = input.takeRest();
        decipherForeign(QString::fromUtf8(text.constData(), text.size()));
        decipherForeign(QString::fromLatin1(text));
    }
    return 0;
}
