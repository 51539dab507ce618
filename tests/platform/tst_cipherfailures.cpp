// SPDX-FileCopyrightText: 2026 DataManager contributors
// SPDX-License-Identifier: BSD-3-Clause

// The source of randomness is replaced by the interface that OpenSSL keeps for that, which it counts as old.
#define OPENSSL_SUPPRESS_DEPRECATED

#include <configoption/TextCipher.h>
#include <support/Nobody.h>

#include <QTemporaryDir>
#include <QtTest>

#include <openssl/evp.h>
#include <openssl/hmac.h>
#include <openssl/rand.h>

#include <malloc.h>

using ConfigOption::TextCipher;

namespace {

const char keyVariable[] = "DATAMANAGER_CIPHER_KEY";
const char keyFileVariable[] = "DATAMANAGER_CIPHER_KEY_FILE";
const QString sample = QStringLiteral("The quick brown fox, 自由空间");

QString encrypt(const QString& text)
{
    return TextCipher::getInstance()->encryptData_CBC(text);
}

QString decrypt(const QString& text)
{
    return TextCipher::getInstance()->decryptData_CBC(text);
}

bool failsToEncrypt(const QString& text)
{
    QTest::ignoreMessage(QtDebugMsg, "Encrypt text fail!");
    return encrypt(text).isEmpty();
}

bool failsToDecrypt(const QString& cipherText)
{
    QTest::ignoreMessage(QtDebugMsg, "Decrypt text fail: it was not encrypted with this key.");
    return decrypt(cipherText).isEmpty();
}

/// While it lives, every algorithm must be one that no provider here has.
class WithoutAlgorithms
{
public:
    WithoutAlgorithms() { EVP_set_default_properties(nullptr, "provider=none"); }
    ~WithoutAlgorithms() { EVP_set_default_properties(nullptr, ""); }
    WithoutAlgorithms(const WithoutAlgorithms&) = delete;
    WithoutAlgorithms& operator=(const WithoutAlgorithms&) = delete;
};

/// While it lives, there are no random bytes to be had.
class WithoutRandomness
{
public:
    WithoutRandomness() { RAND_set_rand_method(&m_failing); }
    ~WithoutRandomness() { RAND_set_rand_method(nullptr); }
    WithoutRandomness(const WithoutRandomness&) = delete;
    WithoutRandomness& operator=(const WithoutRandomness&) = delete;

private:
    RAND_METHOD m_failing = {nullptr, [](unsigned char*, int) { return 0; }, nullptr, nullptr, nullptr, nullptr};
};

/// `plain` under a key, with a right tag but whatever padding it brings along.
QString sealedWithoutPadding(const QByteArray& secret, const QByteArray& plain,
                             const QByteArray& vector = QByteArray(16, 'v'))
{
    unsigned char keys[64] = {};
    PKCS5_PBKDF2_HMAC(secret.constData(), secret.size(),
                      reinterpret_cast<const unsigned char*>("DataManager text cipher"), 23, 100000, EVP_sha256(), 64,
                      keys);
    QByteArray sealed = vector + QByteArray(plain.size(), '\0');
    auto* const bytes = reinterpret_cast<unsigned char*>(sealed.data());
    EVP_CIPHER_CTX* const context = EVP_CIPHER_CTX_new();
    int length = 0;
    EVP_EncryptInit_ex(context, EVP_aes_256_cbc(), nullptr, keys, bytes);
    EVP_CIPHER_CTX_set_padding(context, 0);
    EVP_EncryptUpdate(context, bytes + 16, &length, reinterpret_cast<const unsigned char*>(plain.constData()),
                      plain.size());
    EVP_CIPHER_CTX_free(context);
    const QByteArray message = "DMTC1:" + sealed;
    unsigned char tag[32] = {};
    unsigned int size = 0;
    HMAC(EVP_sha256(), keys + 32, 32, reinterpret_cast<const unsigned char*>(message.constData()),
         size_t(message.size()), tag, &size);
    return QStringLiteral("DMTC1:") +
           QString::fromLatin1((sealed + QByteArray(reinterpret_cast<char*>(tag), 32)).toBase64());
}

} // namespace

/// What the cipher does where the machine does not serve it: no text, one line in the log, and all is well again
/// afterwards.
class TestCipherFailures : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void failsWithoutAlgorithms();
    void failsToDeriveKeysWithoutAlgorithms();
    void failsWithoutRandomness();
    void refusesWrongPadding_data();
    void refusesWrongPadding();
    void refusesWhatHoldsNoText();
    void refusesALetterMoreThatIsLikeTheLastOnes();
    void keepsNoMemory();
    void failsWithUnreadableKeyFiles();
    void failsOnTextsThatAreTooLong();
};

void TestCipherFailures::init()
{
    qunsetenv(keyVariable);
    qunsetenv(keyFileVariable);
}

void TestCipherFailures::failsWithoutAlgorithms()
{
    const QString cipherText = encrypt(sample);
    {
        const WithoutAlgorithms none;
        QVERIFY(failsToEncrypt(sample));
        QVERIFY(failsToDecrypt(cipherText));
    }
    QCOMPARE(decrypt(cipherText), sample);
    QCOMPARE(decrypt(encrypt(sample)), sample);
}

void TestCipherFailures::failsToDeriveKeysWithoutAlgorithms()
{
    const QString withBuiltIn = encrypt(sample);
    qputenv(keyVariable, "a secret that was not used before");
    {
        const WithoutAlgorithms none;
        QVERIFY(failsToEncrypt(sample));
        QVERIFY(failsToDecrypt(withBuiltIn));
    }
    const QString known =
        sealedWithoutPadding("a secret that was not used before", "8" + QByteArray(8, 'a') + QByteArray(7, '\7'));
    QCOMPARE(decrypt(known), QStringLiteral("aaaaaaaa"));
    const QString cipherText = encrypt(sample);
    QCOMPARE(decrypt(cipherText), sample);
    qunsetenv(keyVariable);
    QVERIFY(failsToDecrypt(cipherText));
    QCOMPARE(decrypt(withBuiltIn), sample);
    // Not even the keys that were there before are taken for those of the failing secret, or the other way round.
    qputenv(keyVariable, "another secret that was not used before");
    {
        const WithoutAlgorithms none;
        QVERIFY(failsToEncrypt(sample));
    }
    qunsetenv(keyVariable);
    QCOMPARE(decrypt(withBuiltIn), sample);
}

void TestCipherFailures::failsWithoutRandomness()
{
    const QString cipherText = encrypt(sample);
    {
        const WithoutRandomness none;
        QVERIFY(failsToEncrypt(sample));
        // Reading needs none.
        QCOMPARE(decrypt(cipherText), sample);
    }
    QCOMPARE(decrypt(encrypt(sample)), sample);
}

void TestCipherFailures::refusesWrongPadding_data()
{
    QTest::addColumn<QByteArray>("padding");
    QTest::addColumn<bool>("isRight");
    QTest::newRow("right") << QByteArray(15, '\x0f') << true;
    QTest::newRow("none") << QByteArray(15, '\0') << false;
    QTest::newRow("longer than a block") << QByteArray(15, '\x11') << false;
    QTest::newRow("of two kinds") << QByteArray(14, '\x0e') + '\x0f' << false;
}

void TestCipherFailures::refusesWrongPadding()
{
    QFETCH(QByteArray, padding);
    QFETCH(bool, isRight);
    qputenv(keyVariable, "known");
    const QString cipherText = sealedWithoutPadding("known", "8" + QByteArray(16, 'a') + padding);
    if (isRight) {
        QCOMPARE(decrypt(cipherText), QString(16, QLatin1Char('a')));
    } else {
        QVERIFY(failsToDecrypt(cipherText));
    }
}

/// Not even the byte that tells the form of the text.
void TestCipherFailures::refusesWhatHoldsNoText()
{
    qputenv(keyVariable, "known");
    QVERIFY(failsToDecrypt(sealedWithoutPadding("known", QByteArray(16, '\x10'))));
}

/// A part of the text stands for three bytes in four letters, so its last letters can be found in the longer text, too.
void TestCipherFailures::refusesALetterMoreThatIsLikeTheLastOnes()
{
    qputenv(keyVariable, "known");
    // Of a million such vectors a few give a tag whose last four letters are the same.
    const QString cipherText =
        sealedWithoutPadding("known", "8" + QByteArray(40, 'a') + QByteArray(7, '\7'), "vector 000737090");
    QCOMPARE(cipherText.right(4), QStringLiteral("kkkk"));
    QCOMPARE(decrypt(cipherText), QString(40, QLatin1Char('a')));
    QVERIFY(failsToDecrypt(cipherText + QLatin1Char('k')));
    QVERIFY(failsToDecrypt(cipherText + QStringLiteral("kk")));
    QVERIFY(failsToDecrypt(cipherText + QStringLiteral("kkkk")));
}

void TestCipherFailures::keepsNoMemory()
{
    const auto useOnce = [] { return decrypt(encrypt(sample)) == sample; };
    QVERIFY(useOnce());
    const size_t before = mallinfo2().uordblks;
    if (before == 0) {
        QSKIP("a sanitizer has memory of its own, and looks for leaks itself");
    }
    for (int i = 0; i < 1000; ++i) {
        QVERIFY(useOnce());
    }
    const size_t after = mallinfo2().uordblks;
    QVERIFY2(after < before + 16000, qPrintable(QString::number(after - before)));
}

void TestCipherFailures::failsWithUnreadableKeyFiles()
{
    const QString cipherText = encrypt(sample);
    QTemporaryDir directory;
    QFile file(directory.filePath(QStringLiteral("key")));
    QVERIFY(file.open(QIODevice::WriteOnly));
    file.write("secret");
    file.close();
    QVERIFY(file.setPermissions(QFile::Permissions()));
    for (const QString& path : {file.fileName(), directory.path()}) {
        qputenv(keyFileVariable, QFile::encodeName(path));
        const Nobody nobody;
        QVERIFY(failsToEncrypt(sample));
        QVERIFY(failsToDecrypt(cipherText));
    }
}

/// Beyond what a QByteArray holds once it is enciphered.
void TestCipherFailures::failsOnTextsThatAreTooLong()
{
    QVERIFY(failsToEncrypt(QString(250000001, QLatin1Char('a'))));
#ifdef DATAMANAGER_EXHAUSTIVE_TESTS // takes gigabytes
    QVERIFY(!encrypt(QString(250000000, QLatin1Char('a'))).isEmpty());
#endif
}

QTEST_GUILESS_MAIN(TestCipherFailures)
#include "tst_cipherfailures.moc"
