// SPDX-FileCopyrightText: 2026 DataManager contributors
// SPDX-License-Identifier: BSD-3-Clause

#include <materials/LibraryText.h>

#include <basemodule/GlobalHelper.h>
#include <configoption/TextCipher.h>

#include <QCoreApplication>
#include <QJsonDocument>

namespace Materials {

namespace {

LibraryText faulty(const QString& fault)
{
    return {{}, fault};
}

QString placeOf(const QByteArray& json, int offset)
{
    const QByteArray before = json.left(offset);
    const int line = before.count('\n') + 1;
    const int column = before.size() - before.lastIndexOf('\n');
    return QStringLiteral("%1:%2").arg(line).arg(column);
}

} // namespace

LibraryText parseLibraryText(const QString& path, const QByteArray& json)
{
    QJsonParseError error = {};
    const QJsonDocument document = QJsonDocument::fromJson(json, &error);
    if (error.error != QJsonParseError::NoError) {
        return faulty(QCoreApplication::translate("materials", "%1:%2: no JSON: %3")
                          .arg(path, placeOf(json, error.offset), error.errorString()));
    }
    if (!document.isObject()) {
        return faulty(
            QCoreApplication::translate("materials", "%1:1:1: a JSON object is expected at the root").arg(path));
    }
    if (!document.object().value(QStringLiteral("materialList")).isArray()) {
        return faulty(QCoreApplication::translate("materials", "%1: the root has no list 'materialList'").arg(path));
    }
    return {document.object(), {}};
}

LibraryText readLibraryText(const QString& path, bool isEnciphered)
{
    QByteArray bytes;
    if (!BaseModule::GlobalHelper::readFile(path, bytes)) {
        return faulty(QCoreApplication::translate("materials", "%1: cannot be read").arg(path));
    }
    if (!isEnciphered) {
        return parseLibraryText(path, bytes);
    }
    const QString json = ConfigOption::TextCipher::getInstance()->decryptData_CBC(QString::fromUtf8(bytes));
    if (json.isEmpty()) {
        return faulty(QCoreApplication::translate(
                          "materials", "%1: not enciphered with this key, or damaged; --plain reads plain JSON")
                          .arg(path));
    }
    return parseLibraryText(path, json.toUtf8());
}

} // namespace Materials
