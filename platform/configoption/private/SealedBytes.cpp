// SPDX-FileCopyrightText: 2026 DataManager contributors
// SPDX-License-Identifier: BSD-3-Clause

#include <configoption/private/SealedBytes.h>

#include <configoption/private/CipherKeys.h>

#include <openssl/crypto.h>
#include <openssl/evp.h>
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

struct KeyDeleter
{
    void operator()(EVP_PKEY* key) const { EVP_PKEY_free(key); }
};

struct DigestDeleter
{
    void operator()(EVP_MD_CTX* context) const { EVP_MD_CTX_free(context); }
};

/// What AES-256-CBC makes of `size` bytes in either direction, written to `output`, which has room for a block more.
/// How many bytes that are; -1 on failure, which includes wrong padding.
int transform(const unsigned char* input, int size, const unsigned char* vector, const CipherKeys& keys,
              bool isEncrypting, unsigned char* output)
{
    const std::unique_ptr<EVP_CIPHER_CTX, ContextDeleter> context(EVP_CIPHER_CTX_new());
    int written = 0;
    int lastWritten = 0;
    if (context == nullptr ||
        EVP_CipherInit_ex(context.get(), EVP_aes_256_cbc(), nullptr, keys.encryption.data(), vector, isEncrypting) !=
            1 ||
        EVP_CipherUpdate(context.get(), output, &written, input, size) != 1 ||
        EVP_CipherFinal_ex(context.get(), output + written, &lastWritten) != 1) {
        return -1;
    }
    return written + lastWritten;
}

/// Over the version and the first `size` bytes of `sealed`; empty on failure.
QByteArray tagOf(const QByteArray& version, const QByteArray& sealed, int size, const CipherKeys& keys)
{
    const std::unique_ptr<EVP_PKEY, KeyDeleter> key(
        EVP_PKEY_new_mac_key(EVP_PKEY_HMAC, nullptr, keys.integrity.data(), int(keys.integrity.size())));
    const std::unique_ptr<EVP_MD_CTX, DigestDeleter> context(EVP_MD_CTX_new());
    QByteArray tag(tagSize, '\0');
    size_t tagLength = tagSize;
    if (key == nullptr || context == nullptr ||
        EVP_DigestSignInit(context.get(), nullptr, EVP_sha256(), nullptr, key.get()) != 1 ||
        EVP_DigestSignUpdate(context.get(), version.constData(), size_t(version.size())) != 1 ||
        EVP_DigestSignUpdate(context.get(), sealed.constData(), size_t(size)) != 1 ||
        EVP_DigestSignFinal(context.get(), bytesOf(tag), &tagLength) != 1 || tagLength != tagSize) {
        return {};
    }
    return tag;
}

} // namespace

// Texts of 100 MB are usual, so each step works in place instead of on a copy.

QByteArray SealedBytes::seal(const QByteArray& plain, const QByteArray& version, const CipherKeys& keys)
{
    QByteArray sealed(vectorSize + plain.size() + blockSize + tagSize, Qt::Uninitialized);
    unsigned char* const bytes = bytesOf(sealed);
    if (RAND_bytes(bytes, vectorSize) != 1) {
        return {};
    }
    const int size = transform(bytesOf(plain), plain.size(), bytes, keys, true, bytes + vectorSize);
    if (size < 0) {
        return {};
    }
    const QByteArray tag = tagOf(version, sealed, vectorSize + size, keys);
    sealed.resize(vectorSize + size);
    return tag.isEmpty() ? QByteArray() : sealed.append(tag);
}

bool SealedBytes::open(const QByteArray& sealed, const QByteArray& version, const CipherKeys& keys, QByteArray& plain)
{
    const int cipherSize = sealed.size() - vectorSize - tagSize;
    if (cipherSize < blockSize) {
        return false;
    }
    const QByteArray tag = tagOf(version, sealed, vectorSize + cipherSize, keys);
    const unsigned char* const bytes = bytesOf(sealed);
    if (tag.isEmpty() || CRYPTO_memcmp(tag.constData(), bytes + vectorSize + cipherSize, tagSize) != 0) {
        return false;
    }
    QByteArray opened(cipherSize + blockSize, Qt::Uninitialized);
    const int size = transform(bytes + vectorSize, cipherSize, bytes, keys, false, bytesOf(opened));
    if (size <= 0) {
        return false;
    }
    opened.resize(size);
    plain = opened;
    return true;
}

} // namespace ConfigOption
