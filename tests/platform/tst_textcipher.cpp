// SPDX-FileCopyrightText: 2026 DataManager contributors
// SPDX-License-Identifier: BSD-3-Clause

#include <configoption/TextCipher.h>

#include <QTemporaryDir>
#include <QtTest>

#include <openssl/evp.h>
#include <openssl/hmac.h>

#include <sys/stat.h>

using ConfigOption::TextCipher;

namespace {

const QString mark = QStringLiteral("DMTC1:");
const char keyVariable[] = "DATAMANAGER_CIPHER_KEY";
const char keyFileVariable[] = "DATAMANAGER_CIPHER_KEY_FILE";

QString encrypt(const QString& text)
{
    return TextCipher::getInstance()->encryptData_CBC(text);
}

QString decrypt(const QString& text)
{
    return TextCipher::getInstance()->decryptData_CBC(text);
}

void expectRefusal()
{
    QTest::ignoreMessage(QtDebugMsg, "Decrypt text fail: it was not encrypted with this key.");
}

const QString sample = QStringLiteral("The quick brown fox, 自由空间");

} // namespace

class TestTextCipher : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void hasOneInstance();
    void returnsEveryText_data();
    void returnsEveryText();
    void differsFromCallToCall();
    void hasTheDocumentedForm_data();
    void hasTheDocumentedForm();
    void refusesForeignTexts_data();
    void refusesForeignTexts();
    void refusesEverySingleBitFlip();
    void refusesEveryOtherEnding_data();
    void refusesEveryOtherEnding();
    void refusesEveryTruncation();
    void refusesExchangedBlocks();
    void refusesAnotherKey();
    void takesTheKeyFromAFile_data();
    void takesTheKeyFromAFile();
    void failsWithoutTheConfiguredKeyFile_data();
    void failsWithoutTheConfiguredKeyFile();
    void doesNotWaitForAPipe();
};

void TestTextCipher::init()
{
    qunsetenv(keyVariable);
    qunsetenv(keyFileVariable);
}

void TestTextCipher::hasOneInstance()
{
    QCOMPARE(TextCipher::getInstance(), TextCipher::getInstance());
}

void TestTextCipher::returnsEveryText_data()
{
    QTest::addColumn<QString>("text");
    QTest::newRow("null") << QString();
    QTest::newRow("empty") << QStringLiteral("");
    QTest::newRow("ASCII") << QStringLiteral("plain");
    QTest::newRow("fifteen bytes and a mark") << QString(15, QLatin1Char('x'));
    QTest::newRow("sixteen bytes and a mark") << QString(16, QLatin1Char('x'));
    QTest::newRow("Chinese") << sample;
    QTest::newRow("outside the basic plane") << QString::fromUtf8("\xf0\x9f\x94\xa9");
    QTest::newRow("NUL") << QString(3, QChar(0));
    QTest::newRow("NUL inside") << QStringLiteral("a") + QChar(0) + QStringLiteral("b");
    QTest::newRow("byte-order mark") << QString(QChar(0xfeff)) + QStringLiteral("a");
    QTest::newRow("swapped byte-order mark") << QString(QChar(0xfffe)) + QStringLiteral("a");
    QTest::newRow("lone high surrogate") << QStringLiteral("a") + QChar(0xd800) + QStringLiteral("b");
    QTest::newRow("lone low surrogate") << QString(QChar(0xdfff));
    QTest::newRow("swapped surrogates") << QString(QChar(0xdc00)) + QChar(0xd800);
    QString every;
    for (int code = 0; code <= 0xffff; ++code) {
        every += QChar(code);
    }
    QTest::newRow("every code unit") << every;
    QTest::newRow("long") << QString(5000000, QChar(0x4e2d));
}

void TestTextCipher::returnsEveryText()
{
    QFETCH(QString, text);
    const QString cipherText = encrypt(text);
    QVERIFY(cipherText.startsWith(mark));
    QCOMPARE(decrypt(cipherText), text);
    QCOMPARE(decrypt(decrypt(encrypt(cipherText))), text);
}

void TestTextCipher::differsFromCallToCall()
{
    QSet<QString> texts;
    for (int i = 0; i < 1000; ++i) {
        // The first block shows the initialisation vector alone.
        texts.insert(encrypt(sample).mid(mark.size(), 21));
    }
    QCOMPARE(texts.size(), 1000);
}

void TestTextCipher::hasTheDocumentedForm_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<QByteArray>("plain");
    const QString pair = QString::fromUcs4(U"\U0001F529");
    const QString letters(20, QLatin1Char('x'));
    QTest::newRow("letters") << QStringLiteral("ab") << QByteArray("8ab");
    QTest::newRow("a pair at the end") << letters + pair << "8" + letters.toLatin1() + "\xf0\x9f\x94\xa9";
    QTest::newRow("two pairs") << pair + pair << QByteArray("8\xf0\x9f\x94\xa9\xf0\x9f\x94\xa9");
    QTest::newRow("a half") << QString(QChar(0xd801)) + QLatin1Char('z') << QByteArray("W\x01\xd8z\0", 5);
    QTest::newRow("two low halves") << QString(QChar(0xdc01)) + QChar(0xdc02) << QByteArray("W\x01\xdc\x02\xdc");
    QTest::newRow("a half at the end") << QString(QChar(0x4e2d)) + QChar(0xdbff) << QByteArray("W\x2d\x4e\xff\xdb");
    QTest::newRow("byte-order mark") << QString(QChar(0xfeff)) << QByteArray("W\xff\xfe");
}

// Written from the description of the format, with OpenSSL's one-call functions: the other side of the interface.
void TestTextCipher::hasTheDocumentedForm()
{
    QFETCH(QString, text);
    QFETCH(QByteArray, plain);
    qputenv(keyVariable, "a secret of ours");
    const QByteArray sealed = QByteArray::fromBase64(encrypt(text).mid(mark.size()).toLatin1());
    const int cipherSize = (plain.size() / 16 + 1) * 16;
    QCOMPARE(sealed.size(), 16 + cipherSize + 32);
    unsigned char keys[64];
    QVERIFY(PKCS5_PBKDF2_HMAC("a secret of ours", 16, reinterpret_cast<const unsigned char*>("DataManager text cipher"),
                              23, 100000, EVP_sha256(), 64, keys) == 1);
    const QByteArray message = "DMTC1:" + sealed.left(16 + cipherSize);
    unsigned char tag[32];
    unsigned int size = 0;
    HMAC(EVP_sha256(), keys + 32, 32, reinterpret_cast<const unsigned char*>(message.constData()),
         size_t(message.size()), tag, &size);
    QCOMPARE(sealed.mid(16 + cipherSize), QByteArray(reinterpret_cast<char*>(tag), 32));
    EVP_CIPHER_CTX* const context = EVP_CIPHER_CTX_new();
    unsigned char opened[64];
    int length = 0;
    int last = 0;
    const auto* const bytes = reinterpret_cast<const unsigned char*>(sealed.constData());
    QVERIFY(EVP_DecryptInit_ex(context, EVP_aes_256_cbc(), nullptr, keys, bytes) == 1);
    QVERIFY(EVP_DecryptUpdate(context, opened, &length, bytes + 16, cipherSize) == 1);
    QVERIFY(EVP_DecryptFinal_ex(context, opened + length, &last) == 1);
    EVP_CIPHER_CTX_free(context);
    QCOMPARE(QByteArray(reinterpret_cast<char*>(opened), length + last), plain);
}

void TestTextCipher::refusesForeignTexts_data()
{
    QTest::addColumn<QString>("text");
    const QString cipherText = encrypt(sample);
    QTest::newRow("empty") << QString();
    QTest::newRow("plain") << sample;
    QTest::newRow("JSON") << QStringLiteral("{\"materialList\":[]}");
    QTest::newRow("mark alone") << mark;
    QTest::newRow("without mark") << cipherText.mid(mark.size());
    QTest::newRow("another version") << QStringLiteral("DMTC2:") + cipherText.mid(mark.size());
    QTest::newRow("a letter appended") << cipherText + QLatin1Char('A');
    QTest::newRow("a line end appended") << cipherText + QLatin1Char('\n');
    QTest::newRow("NUL appended") << cipherText + QChar(0);
    QTest::newRow("blank before") << QLatin1Char(' ') + cipherText;
    QTest::newRow("blank inside") << QString(cipherText).insert(20, QLatin1Char(' '));
    QTest::newRow("twice in a row") << cipherText + cipherText;
    QTest::newRow("Base64 of nothing") << mark + QStringLiteral("====");
    QTest::newRow("zeros") << mark + QString::fromLatin1(QByteArray(128, '\0').toBase64());
    QTest::newRow("one block short") << mark + QString::fromLatin1(QByteArray(63, 'x').toBase64());
}

void TestTextCipher::refusesForeignTexts()
{
    QFETCH(QString, text);
    expectRefusal();
    const QString plain = decrypt(text);
    QVERIFY(plain.isEmpty());
}

void TestTextCipher::refusesEverySingleBitFlip()
{
    const QString cipherText = encrypt(sample);
    for (int i = 0; i < cipherText.size(); ++i) {
        for (int bit = 0; bit < 16; ++bit) {
            QString changed = cipherText;
            changed[i] = QChar(changed.at(i).unicode() ^ (1 << bit));
            expectRefusal();
            QVERIFY2(decrypt(changed).isEmpty(), qPrintable(QStringLiteral("unit %1 bit %2").arg(i).arg(bit)));
        }
    }
}

void TestTextCipher::refusesEveryOtherEnding_data()
{
    QTest::addColumn<int>("length");
    QTest::addColumn<QString>("filling");
    QTest::newRow("one byte in the last letters") << 1 << QStringLiteral("==");
    QTest::newRow("two bytes in the last letters") << 16 << QStringLiteral("=");
    QTest::newRow("three bytes in the last letters") << 32 << QString();
}

/// Also one that stands for the same bytes.
void TestTextCipher::refusesEveryOtherEnding()
{
    QFETCH(int, length);
    QFETCH(QString, filling);
    const QString cipherText = encrypt(QString(length, QLatin1Char('x')));
    QVERIFY(cipherText.endsWith(filling) && !cipherText.endsWith(filling + QLatin1Char('=')));
    for (int place = cipherText.size() - 4; place < cipherText.size(); ++place) {
        for (const char letter : QByteArray("ABCDEFGHIJKLMNOPQRSTUVWXYZabcdefghijklmnopqrstuvwxyz0123456789+/=-_")) {
            QString changed = cipherText;
            changed[place] = QLatin1Char(letter);
            if (changed != cipherText) {
                expectRefusal();
                QVERIFY2(decrypt(changed).isEmpty(), qPrintable(changed.right(4)));
            }
        }
    }
}

void TestTextCipher::refusesEveryTruncation()
{
    const QString cipherText = encrypt(sample);
    for (int size = 0; size < cipherText.size(); ++size) {
        expectRefusal();
        QVERIFY(decrypt(cipherText.left(size)).isEmpty());
        if (size > 0) {
            expectRefusal();
            QVERIFY(decrypt(cipherText.mid(size)).isEmpty());
        }
    }
}

void TestTextCipher::refusesExchangedBlocks()
{
    const auto sealedOf = [](const QString& text) {
        return QByteArray::fromBase64(encrypt(text).mid(mark.size()).toLatin1());
    };
    const auto first = sealedOf(QString(100, QLatin1Char('a')));
    const auto second = sealedOf(QString(100, QLatin1Char('b')));
    for (int begin = 0; begin + 16 <= first.size(); begin += 16) {
        QByteArray mixed = first;
        mixed.replace(begin, 16, second.mid(begin, 16));
        expectRefusal();
        QVERIFY(decrypt(mark + QString::fromLatin1(mixed.toBase64())).isEmpty());
    }
}

void TestTextCipher::refusesAnotherKey()
{
    const QString withBuiltIn = encrypt(sample);
    qputenv(keyVariable, "first");
    const QString withFirst = encrypt(sample);
    QCOMPARE(decrypt(withFirst), sample);
    expectRefusal();
    QVERIFY(decrypt(withBuiltIn).isEmpty());
    qputenv(keyVariable, "second");
    expectRefusal();
    QVERIFY(decrypt(withFirst).isEmpty());
    qunsetenv(keyVariable);
    QCOMPARE(decrypt(withBuiltIn), sample);
    expectRefusal();
    QVERIFY(decrypt(withFirst).isEmpty());
}

void TestTextCipher::takesTheKeyFromAFile_data()
{
    QTest::addColumn<QByteArray>("content");
    QTest::newRow("without a line end") << QByteArray("from a file");
    QTest::newRow("line end") << QByteArray("from a file\n");
    QTest::newRow("line end of Windows") << QByteArray("from a file\r\n");
    QTest::newRow("several") << QByteArray("from a file\n\r\n");
}

void TestTextCipher::takesTheKeyFromAFile()
{
    QFETCH(QByteArray, content);
    QTemporaryDir directory;
    const QString path = directory.filePath(QStringLiteral("key"));
    QFile file(path);
    QVERIFY(file.open(QIODevice::WriteOnly));
    file.write(content);
    file.close();
    qputenv(keyFileVariable, QFile::encodeName(path));
    const QString withFile = encrypt(sample);
    QCOMPARE(decrypt(withFile), sample);
    qputenv(keyVariable, "the variable goes first");
    expectRefusal();
    QVERIFY(decrypt(withFile).isEmpty());
    qunsetenv(keyFileVariable);
    qputenv(keyVariable, "from a file");
    QCOMPARE(decrypt(withFile), sample);
}

void TestTextCipher::failsWithoutTheConfiguredKeyFile_data()
{
    QTest::addColumn<QByteArray>("content");
    QTest::addColumn<bool>("exists");
    QTest::newRow("missing") << QByteArray() << false;
    QTest::newRow("empty") << QByteArray() << true;
    QTest::newRow("only line ends") << QByteArray("\r\n\n") << true;
}

void TestTextCipher::failsWithoutTheConfiguredKeyFile()
{
    QFETCH(QByteArray, content);
    QFETCH(bool, exists);
    const QString withBuiltIn = encrypt(sample);
    QTemporaryDir directory;
    QFile file(directory.filePath(QStringLiteral("key")));
    if (exists) {
        QVERIFY(file.open(QIODevice::WriteOnly));
        file.write(content);
        file.close();
    }
    qputenv(keyFileVariable, QFile::encodeName(file.fileName()));
    QTest::ignoreMessage(QtDebugMsg, "Encrypt text fail!");
    QVERIFY(encrypt(sample).isEmpty());
    expectRefusal();
    QVERIFY(decrypt(withBuiltIn).isEmpty());
}

void TestTextCipher::doesNotWaitForAPipe()
{
    const QTemporaryDir directory;
    const QByteArray pipe = QFile::encodeName(directory.filePath(QStringLiteral("key")));
    QCOMPARE(::mkfifo(pipe.constData(), 0600), 0);
    qputenv(keyFileVariable, pipe);
    QTest::ignoreMessage(QtDebugMsg, "Encrypt text fail!");
    QVERIFY(encrypt(sample).isEmpty());
}

QTEST_GUILESS_MAIN(TestTextCipher)
#include "tst_textcipher.moc"
