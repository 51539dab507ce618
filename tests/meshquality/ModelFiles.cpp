// SPDX-FileCopyrightText: 2026 DataManager contributors
// SPDX-License-Identifier: BSD-3-Clause

#include "ModelFiles.h"

#include "MeshFiles.h"

#include <QFile>
#include <QString>
#include <QTemporaryDir>

namespace {

QByteArray fileContent(const QString& path)
{
    QFile file(QStringLiteral(DATAMANAGER_SOURCE_DIR "/") + path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

QByteArray variableLength(int number)
{
    QByteArray bytes;
    for (; number > 127; number >>= 7) {
        bytes += static_cast<char>((number & 127) | 128);
    }
    return bytes + static_cast<char>(number);
}

/// A length-delimited field of a protocol buffer.
QByteArray field(int number, const QByteArray& content)
{
    return variableLength(number << 3 | 2) + variableLength(content.size()) + content;
}

} // namespace

QByteArray ModelFiles::content(const char* name)
{
    return fileContent(QStringLiteral("tests/meshquality/models/%1.onnx").arg(QString::fromLatin1(name)));
}

QByteArray ModelFiles::shipped()
{
    return fileContent(QStringLiteral("model/mesh.onnx"));
}

// Messages that stand one behind the other count as one, with all their repeated fields.
QByteArray ModelFiles::withMetadata(const QByteArray& model, const Metadata& metadata)
{
    QByteArray result = model;
    for (const auto& [key, value] : metadata) {
        result += field(14, field(1, key) + field(2, value));
    }
    return result;
}

// Of the graphs that stand one behind the other, too.
QByteArray ModelFiles::withOutput(const QByteArray& model)
{
    const QByteArray node = field(1, "value") + field(2, "more") + field(4, "Identity");
    const QByteArray type = field(1, "\x08\x07");
    return model + field(7, field(1, node) + field(12, field(1, "more") + field(2, type)));
}

QByteArray ModelFiles::described()
{
    return withMetadata(
        content("last-feature"),
        {{"name", "last"},
         {"version", "3.1"},
         {"meaning", "the last\nfeature"},
         {"explanation", "%1 is one %2th of all, in 100 % of %3"},
         {"trainedOn", "nothing"},
         {"licence", "BSD-3-Clause"},
         {"dataSha256", "0"},
         {"featureOrder", R"(["Volume", "EdgeRatio", "AspectRatio", "AspectGamma", "Condition", "Jacobian", )"
                          R"("RadiusRatio", "RelativeSizeSquared", "ScaledJacobian", "Shape", "ShapeAndSize"])"},
         {"trainingRanges", R"({"Volume": null, "Shape": [0.5, 0.9]})"}});
}

QString ModelFiles::placed(const QTemporaryDir& directory, const QByteArray& content)
{
    const QString path = directory.filePath(QStringLiteral("a %1 é.onnx"));
    MeshFiles::write(path, content);
    return path;
}
