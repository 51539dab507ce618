// SPDX-FileCopyrightText: 2026 DataManager contributors
// SPDX-License-Identifier: BSD-3-Clause

// Each function of OpenSSL that enciphering calls fails in turn. This program puts itself in front of them.

#include <configoption/TextCipher.h>

#include <QtTest>

#include <dlfcn.h>
#include <openssl/evp.h>

using ConfigOption::TextCipher;

namespace {

/// The function that fails; empty: none does.
QByteArray failing;

template <class Function>
Function next(const char* name)
{
    return reinterpret_cast<Function>(dlsym(RTLD_NEXT, name));
}

QString encrypt(const QString& text)
{
    return TextCipher::getInstance()->encryptData_CBC(text);
}

QString decrypt(const QString& text)
{
    return TextCipher::getInstance()->decryptData_CBC(text);
}

} // namespace

// `name` with its parameters, and the names of these; a failing one returns 0 or none.
#define STAND_IN_FRONT_OF(Result, name, parameters, arguments)                                                         \
    Result name parameters                                                                                             \
    {                                                                                                                  \
        static const auto original = next<Result(*) parameters>(#name);                                                \
        return failing == #name ? decltype(original arguments){} : original arguments;                                 \
    }

extern "C" {
STAND_IN_FRONT_OF(EVP_PKEY*, EVP_PKEY_new_mac_key, (int type, ENGINE* engine, const unsigned char* key, int length),
                  (type, engine, key, length))
STAND_IN_FRONT_OF(EVP_MD_CTX*, EVP_MD_CTX_new, (), ())
STAND_IN_FRONT_OF(int, EVP_DigestSignInit,
                  (EVP_MD_CTX * context, EVP_PKEY_CTX** keyContext, const EVP_MD* type, ENGINE* engine, EVP_PKEY* key),
                  (context, keyContext, type, engine, key))
STAND_IN_FRONT_OF(int, EVP_DigestSignUpdate, (EVP_MD_CTX * context, const void* data, size_t size),
                  (context, data, size))
STAND_IN_FRONT_OF(int, EVP_DigestSignFinal, (EVP_MD_CTX * context, unsigned char* signature, size_t* size),
                  (context, signature, size))
STAND_IN_FRONT_OF(EVP_CIPHER_CTX*, EVP_CIPHER_CTX_new, (), ())
STAND_IN_FRONT_OF(int, EVP_CipherInit_ex,
                  (EVP_CIPHER_CTX * context, const EVP_CIPHER* cipher, ENGINE* engine, const unsigned char* key,
                   const unsigned char* vector, int isEncrypting),
                  (context, cipher, engine, key, vector, isEncrypting))
STAND_IN_FRONT_OF(int, EVP_CipherUpdate,
                  (EVP_CIPHER_CTX * context, unsigned char* output, int* written, const unsigned char* input, int size),
                  (context, output, written, input, size))
STAND_IN_FRONT_OF(int, EVP_CipherFinal_ex, (EVP_CIPHER_CTX * context, unsigned char* output, int* written),
                  (context, output, written))
}

/// No text comes out of a cipher of which a step failed, and all is well again afterwards.
class SealFailuresTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void cleanup() { failing.clear(); }

    void failsWithEachStep_data()
    {
        QTest::addColumn<QByteArray>("name");
        for (const char* const name : {"EVP_PKEY_new_mac_key", "EVP_MD_CTX_new", "EVP_DigestSignInit",
                                       "EVP_DigestSignUpdate", "EVP_DigestSignFinal", "EVP_CIPHER_CTX_new",
                                       "EVP_CipherInit_ex", "EVP_CipherUpdate", "EVP_CipherFinal_ex"}) {
            QTest::newRow(name) << QByteArray(name);
        }
    }
    void failsWithEachStep()
    {
        QFETCH(QByteArray, name);
        const QString text = QStringLiteral("a text of more than a block of the cipher");
        const QString cipherText = encrypt(text);
        QCOMPARE(decrypt(cipherText), text);
        failing = name;
        QTest::ignoreMessage(QtDebugMsg, "Encrypt text fail!");
        QCOMPARE(encrypt(text), QString());
        QTest::ignoreMessage(QtDebugMsg, "Decrypt text fail: it was not encrypted with this key.");
        QCOMPARE(decrypt(cipherText), QString());
        failing.clear();
        QCOMPARE(decrypt(encrypt(text)), text);
    }
};

QTEST_GUILESS_MAIN(SealFailuresTest)
#include "tst_sealfailures.moc"
