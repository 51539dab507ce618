// SPDX-FileCopyrightText: 2026 DataManager contributors
// SPDX-License-Identifier: BSD-3-Clause

#include <configoption/private/CipherKeys.h>

#include <QByteArray>
#include <QFile>
#include <QFileInfo>

#include <openssl/crypto.h>
#include <openssl/evp.h>

#include <cstring>

namespace ConfigOption {

namespace {

// Readable by everybody: it only makes the file unfit for being edited by hand. See docs/security.md.
constexpr char builtInSecret[] = "DataManager built-in text cipher secret, version 1";
constexpr char salt[] = "DataManager text cipher";
// A few hundredths of a second once per secret; slows down guessing when the secret is a word that people remember.
constexpr int iterations = 100000;

QByteArray readSecretFile(const QString& path)
{
    QFile file(path);
    // A pipe or a device would block or never end.
    if (!QFileInfo(path).isFile() || !file.open(QIODevice::ReadOnly)) {
        return {};
    }
    QByteArray secret = file.readAll();
    while (secret.endsWith('\n') || secret.endsWith('\r')) {
        secret.chop(1);
    }
    return secret;
}

/// Empty when a secret is configured that cannot be had: falling back to the built-in one would then expose the text.
QByteArray configuredSecret()
{
    QByteArray secret = qgetenv("DATAMANAGER_CIPHER_KEY");
    if (!secret.isEmpty()) {
        return secret;
    }
    const QByteArray file = qgetenv("DATAMANAGER_CIPHER_KEY_FILE");
    return file.isEmpty() ? QByteArray(builtInSecret) : readSecretFile(QFile::decodeName(file));
}

bool derive(const QByteArray& secret, CipherKeys& keys)
{
    std::array<unsigned char, sizeof keys.encryption + sizeof keys.integrity> bytes = {};
    const bool isDerived =
        PKCS5_PBKDF2_HMAC(secret.constData(), secret.size(), reinterpret_cast<const unsigned char*>(salt),
                          sizeof salt - 1, iterations, EVP_sha256(), bytes.size(), bytes.data()) == 1;
    if (isDerived) {
        std::memcpy(keys.encryption.data(), bytes.data(), keys.encryption.size());
        std::memcpy(keys.integrity.data(), bytes.data() + keys.encryption.size(), keys.integrity.size());
    }
    OPENSSL_cleanse(bytes.data(), bytes.size());
    return isDerived;
}

} // namespace

const CipherKeys* cipherKeys()
{
    static QByteArray derivedFrom;
    static CipherKeys keys;
    const QByteArray secret = configuredSecret();
    if (secret.isEmpty()) {
        return nullptr;
    }
    if (secret != derivedFrom) {
        derivedFrom.clear();
        OPENSSL_cleanse(&keys, sizeof keys);
        if (!derive(secret, keys)) {
            return nullptr;
        }
        derivedFrom = secret;
    }
    return &keys;
}

} // namespace ConfigOption
