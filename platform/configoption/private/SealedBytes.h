// SPDX-FileCopyrightText: 2026 DataManager contributors
// SPDX-License-Identifier: BSD-3-Clause

#pragma once

#include <QByteArray>

namespace ConfigOption {

struct CipherKeys;

/// Encrypt-then-authenticate over bytes. Sealed bytes are the initialisation vector, the cipher text and the tag.
namespace SealedBytes {

/// Empty on failure; otherwise never empty. `version` is authenticated but not part of the result.
QByteArray seal(const QByteArray& plain, const QByteArray& version, const CipherKeys& keys);

/// False, with `plain` unchanged, when `sealed` was not made with this version and these keys, or from no bytes.
bool open(const QByteArray& sealed, const QByteArray& version, const CipherKeys& keys, QByteArray& plain);

} // namespace SealedBytes

} // namespace ConfigOption
