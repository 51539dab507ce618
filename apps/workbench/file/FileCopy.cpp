// SPDX-FileCopyrightText: 2026 DataManager contributors
// SPDX-License-Identifier: BSD-3-Clause

#include <workbench/file/FileCopy.h>

#include <workbench/file/ReplacementFile.h>

#include <QFile>

#include <algorithm>
#include <vector>

namespace Workbench {
namespace {

constexpr QFileDevice::Permissions readingAndWriting = QFileDevice::ReadOwner | QFileDevice::WriteOwner |
                                                       QFileDevice::ReadGroup | QFileDevice::WriteGroup |
                                                       QFileDevice::ReadOther | QFileDevice::WriteOther;

} // namespace

FileCopy replaceByCopy(QFile& source, const QString& target, const CopyProgress& progress)
{
    constexpr int pieceSize = 1 << 18;
    const auto size = static_cast<double>(std::max(source.size(), Q_INT64_C(1)));
    ReplacementFile copy(target);
    if (!copy.open()) {
        return {false, false, copy.problem()};
    }
    // Nobody reads the copy who may not read the source. Where the disk knows no permissions, there are none to keep.
    copy.setPermissions((source.permissions() & readingAndWriting) | QFileDevice::ReadOwner | QFileDevice::WriteOwner);
    std::vector<char> piece(pieceSize);
    for (qint64 written = 0; !source.atEnd();) {
        const qint64 length = source.read(piece.data(), pieceSize);
        if (length <= 0) {
            return {false, false, source.errorString()};
        }
        if (copy.device().write(piece.data(), length) != length) {
            return {false, false, copy.problem()};
        }
        written += length;
        if (!progress(std::min(static_cast<double>(written) / size, 1.0))) {
            return {false, true, {}};
        }
    }
    return copy.commitUnsynced() ? FileCopy{true, false, {}} : FileCopy{false, false, copy.problem()};
}

} // namespace Workbench
