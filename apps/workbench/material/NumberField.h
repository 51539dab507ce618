// SPDX-FileCopyrightText: 2026 DataManager contributors
// SPDX-License-Identifier: BSD-3-Clause

#pragma once

#include <QLineEdit>

namespace Workbench {

/// A line for one number that keeps every bit of it, the same under every locale: it shows the shortest text that reads
/// back as the same double, and takes decimal numbers with a point. What it refuses it marks, and says why.
class NumberField : public QLineEdit
{
    Q_OBJECT

public:
    /// An empty field, which is refused.
    explicit NumberField(QWidget* parent = nullptr);

    /// Shows the number. Also infinities and not-a-numbers, which nobody can type.
    void setValue(double value);
    /// The number last set as long as its text stands as it was shown, bit by bit; otherwise the number typed, and 0
    /// for what is refused.
    double value() const;
    /// Why the text is no number that the field takes, for the user; empty when it is one.
    QString refusal() const;
    /// Whether the text is another one than `setValue` showed.
    bool isEdited() const;

protected:
    void changeEvent(QEvent* event) override;

private:
    void showRefusal();

    QString m_shownText;
    double m_shownValue = 0;
};

} // namespace Workbench
