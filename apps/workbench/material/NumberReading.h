// SPDX-FileCopyrightText: 2026 DataManager contributors
// SPDX-License-Identifier: BSD-3-Clause

#pragma once

#include <QString>

namespace Workbench {

/// What a typed text means as a number.
struct NumberReading
{
    enum Fault : int
    {
        None,
        Empty,
        HasComma,   ///< a comma of any script; it may mean a decimal mark or a separator of thousands
        NotANumber, ///< anything else that is no decimal number as a whole
        NotFinite,  ///< "inf" or "nan"
        TooLarge,   ///< finite, beyond what a double holds
        TooSmall    ///< not zero, but would become zero
    };
    Fault fault = Empty;
    double value = 0; ///< only without a fault; the nearest double
};

/// Reads a decimal number with a point, the same under every locale. Blanks around it and a plus sign are allowed.
NumberReading readNumber(const QString& text);

} // namespace Workbench
