// SPDX-FileCopyrightText: 2026 DataManager contributors
// SPDX-License-Identifier: BSD-3-Clause

#include <console/Message.h>

#include <QCoreApplication>

namespace Console {

namespace {

// All at once, because a value may hold a place marker itself.
QString filled(const QString& text, const QStringList& values)
{
    switch (values.size()) {
    case 0:
        return text;
    case 1:
        return text.arg(values.at(0));
    case 2:
        return text.arg(values.at(0), values.at(1));
    default:
        return text.arg(values.at(0), values.at(1), values.at(2));
    }
}

} // namespace

Message makeMessage(const char* context, const char* source, const QStringList& values)
{
    return {filled(QString::fromUtf8(source), values), filled(QCoreApplication::translate(context, source), values)};
}

} // namespace Console
