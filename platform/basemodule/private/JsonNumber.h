// SPDX-FileCopyrightText: 2026 DataManager contributors
// SPDX-License-Identifier: BSD-3-Clause

#pragma once

class QJsonValue;

namespace QJsonHelper {

/// The JSON form of a double, such that every bit pattern comes back. Doubles that a JSON number cannot hold become
/// texts; Qt's JSON classes would lose the sign of -0 and write `null` for values that are not finite.
namespace JsonNumber {

QJsonValue fromDouble(double value);

/// False, with `value` unchanged, when `json` is no form of a double.
bool toDouble(const QJsonValue& json, double& value);

} // namespace JsonNumber

} // namespace QJsonHelper
