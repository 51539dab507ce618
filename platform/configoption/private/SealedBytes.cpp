// SPDX-FileCopyrightText: 2026 DataManager contributors
// SPDX-License-Identifier: BSD-3-Clause

#include <configoption/private/SealedBytes.h>

#include <configoption/private/CipherKeys.h>

#include <openssl/crypto.h>
#include <openssl/evp.h>
#include <openssl/hmac.h>
#include <openssl/rand.h>

#include <memory>

namespace ConfigOption {

namespace {

constexpr int vectorSize = 16;
constexpr int blockSize = 16;
constexpr int tagSize = 32;

struct ContextDeleter
{
    void operator()(EVP_CIPHER_CTX* context) const { EVP_CIPHER_CTX_free(context); }
};

unsigned char* bytesOf(QByteArray& array)
{
    return reinterpret_cast<unsigned char*>(array.data());
}

const unsigned char* bytesOf(const QByteArray& array)
{
    return reinterpret_cast<const unsigned char*>(array.constData());
}

/// What AES-256-CBC makes of `input` in either direction; null on failure, which includes wrong padding.
QByteArray transform(const QByteArray& input, const QByteArray& vector, const CipherKeys& keys, bool isEncrypting)
{
    const std::unique_ptr<EVP_CIPHER_CTX, ContextDeleter> context(EVP_CIPHER_CTX_new());
    QByteArray output(input.size() + blockSize, Qt::Uninitialized);
    int size = 0;
    int lastSize = 0;
    if (context == nullptr ||
        EVP_CipherInit_ex(context.get(), EVP_aes_256_cbc(), nullptr, keys.encryption.data(), bytesOf(vector),
                          isEncrypting ? 1 : 0) != 1 ||
        EVP_CipherUpdate(context.get(), bytesOf(output), &size, bytesOf(input), input.size()) != 1 ||
        EVP_CipherFinal_ex(context.get(), bytesOf(output) + size, &lastSize) != 1) {
        return {};
    }
    output.resize(size + lastSize);
    return output;
}

/// Empty on failure.
QByteArray tagOf(const QByteArray& sealed, const QByteArray& version, const CipherKeys& keys)
{
    const QByteArray message = version + sealed;
    QByteArray tag(tagSize, '\0');
    unsigned int size = 0;
    const bool isMade = HMAC(EVP_sha256(), keys.integrity.data(), int(keys.integrity.size()), bytesOf(message),
                             size_t(message.size()), bytesOf(tag), &size) != nullptr;
    return isMade && size == tagSize ? tag : QByteArray();
}

} // namespace

QByteArray SealedBytes::seal(const QByteArray& plain, const QByteArray& version, const CipherKeys& keys)
{
    QByteArray vector(vectorSize, '\0');
    if (RAND_bytes(bytesOf(vector), vectorSize) != 1) {
        return {};
    }
    const QByteArray cipherText = transform(plain, vector, keys, true);
    if (cipherText.isEmpty()) {
        return {};
    }
    const QByteArray authenticated = vector + cipherText;
    const QByteArray tag = tagOf(authenticated, version, keys);
    return tag.isEmpty() ? QByteArray() : authenticated + tag;
}

bool SealedBytes::open(const QByteArray& sealed, const QByteArray& version, const CipherKeys& keys, QByteArray& plain)
{
    if (sealed.size() < vectorSize + blockSize + tagSize) {
        return false;
    }
    const QByteArray authenticated = sealed.left(sealed.size() - tagSize);
    const QByteArray tag = tagOf(authenticated, version, keys);
    if (tag.isEmpty() || CRYPTO_memcmp(tag.constData(), sealed.constData() + authenticated.size(), tagSize) != 0) {
        return false;
    }
    const QByteArray opened = transform(authenticated.mid(vectorSize), authenticated.left(vectorSize), keys, false);
    if (opened.isNull()) {
        return false;
    }
    plain = opened;
    return true;
}

} // namespace ConfigOption
