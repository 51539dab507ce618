// SPDX-FileCopyrightText: 2026 DataManager contributors
// SPDX-License-Identifier: BSD-3-Clause

#include <workbench/mesh/MesherProgress.h>

#include <QRegularExpression>

#include <algorithm>

namespace Workbench {
namespace {

constexpr int mostKept = 100;

struct Stage
{
    const char* text;
    int percent;
};

// What a run of three-dimensional meshing prints, in this order.
constexpr Stage stages[] = {
    {"Reading '", 2},           {"Done reading '", 5},        {"Meshing 1D...", 6},  {"Done meshing 1D", 12},
    {"Meshing 2D...", 13},      {"Done meshing 2D", 35},      {"Meshing 3D...", 36}, {"Done meshing 3D", 80},
    {"Optimizing mesh...", 81}, {"Done optimizing mesh", 92}, {"Writing '", 93},     {"Done writing '", 100},
};

} // namespace

void MesherProgress::take(const QByteArray& output)
{
    m_rest += output;
    for (int end = m_rest.indexOf('\n'); end >= 0; end = m_rest.indexOf('\n')) {
        takeLine(m_rest.left(end).trimmed());
        m_rest.remove(0, end + 1);
    }
    m_rest = m_rest.right(1 << 16);
}

void MesherProgress::takeLine(const QByteArray& line)
{
    static const QRegularExpression form(QStringLiteral("^(Info|Error|Warning)\\s*: (?:\\[ *(\\d+)%\\] )?(.*)$"));
    const QRegularExpressionMatch match = form.match(QString::fromLocal8Bit(line));
    const QString kind = match.captured(1);
    const QString text = match.captured(3);
    if (kind == QLatin1String("Error") && m_errors.size() < mostKept) {
        m_errors.append(text);
    } else if (kind == QLatin1String("Warning") && m_warnings.size() < mostKept) {
        m_warnings.append(text);
    }
    for (const Stage& stage : stages) {
        if (text.startsWith(QLatin1String(stage.text))) {
            rise(stage.percent);
        }
    }
    // Within meshing of curves and surfaces its own percentages count.
    if (!match.captured(2).isEmpty() && m_percent >= 6 && m_percent < 35) {
        const int share = match.captured(2).toInt();
        rise(m_percent < 13 ? 6 + share * 6 / 100 : 13 + share * 22 / 100);
    }
}

void MesherProgress::rise(int percent)
{
    m_percent = std::clamp(percent, m_percent, 100);
}

} // namespace Workbench
