// SPDX-FileCopyrightText: 2026 DataManager contributors
// SPDX-License-Identifier: BSD-3-Clause

#include <meshquality/ProblemText.h>

#include <QCoreApplication>

namespace MeshQuality {

namespace {

// For the catalogue, which finds texts by their marks only.
[[maybe_unused]] const char* const texts[] = {
    QT_TRANSLATE_NOOP("meshquality", "no such file"),
    QT_TRANSLATE_NOOP("meshquality", "not a regular file"),
    QT_TRANSLATE_NOOP("meshquality", "cannot be opened"),
    QT_TRANSLATE_NOOP("meshquality", "cannot be read"),
    QT_TRANSLATE_NOOP("meshquality", "is empty"),
    QT_TRANSLATE_NOOP("meshquality", "cancelled"),
    QT_TRANSLATE_NOOP("meshquality", "no tetrahedra"),
    QT_TRANSLATE_NOOP("meshquality", "a node needs four columns"),
    QT_TRANSLATE_NOOP("meshquality", "a tetrahedron needs nine columns"),
    QT_TRANSLATE_NOOP("meshquality", "names a node that is not there (nodes are numbered by their place in the file)"),
    QT_TRANSLATE_NOOP("meshquality", "not a VTK XML unstructured grid"),
    QT_TRANSLATE_NOOP("meshquality", "a damaged VTK XML unstructured grid"),
    QT_TRANSLATE_NOOP("meshquality", "a VTK XML unstructured grid that does not fit into the memory"),
    QT_TRANSLATE_NOOP("meshquality", "there is no room for temporary files"),
};

} // namespace

QString translated(const QString& english)
{
    return QCoreApplication::translate("meshquality", english.toUtf8().constData());
}

} // namespace MeshQuality
