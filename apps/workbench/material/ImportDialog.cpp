// SPDX-FileCopyrightText: 2026 DataManager contributors
// SPDX-License-Identifier: BSD-3-Clause

#include <workbench/material/ImportDialog.h>

#include <materials/Difference.h>
#include <workbench/material/MaterialLibraries.h>
#include <workbench/material/MaterialName.h>

#include <datamodel/MaterialData.h>

#include <QDialogButtonBox>
#include <QHeaderView>
#include <QLabel>
#include <QPushButton>
#include <QSet>
#include <QTreeWidget>
#include <QVBoxLayout>

namespace Workbench {

namespace {

using Materials::Comparison;

QString stateTitle(Comparison::State state)
{
    switch (state) {
    case Comparison::New:
        return ImportDialog::tr("new");
    case Comparison::Same:
        return ImportDialog::tr("same");
    case Comparison::Changed:
        return ImportDialog::tr("changed");
    case Comparison::Refused:
        return ImportDialog::tr("refused: reserved name");
    }
    return {};
}

} // namespace

void ImportDialog::openFor(BaseModule::MaterialLibType from, const QList<int>& ids, QWidget* parent)
{
    auto* const dialog = new ImportDialog(from, ids, parent);
    dialog->setAttribute(Qt::WA_DeleteOnClose);
    dialog->open();
}

ImportDialog::ImportDialog(BaseModule::MaterialLibType from, const QList<int>& ids, QWidget* parent)
    : QDialog(parent), m_from(from), m_list(new QTreeWidget(this)), m_counts(new QLabel(this))
{
    setObjectName(QStringLiteral("importDialog"));
    m_list->setObjectName(QStringLiteral("comparisons"));
    m_counts->setObjectName(QStringLiteral("counts"));
    setWindowTitle(tr("Copy from: %1, to: %2").arg(libraryTitle(from), libraryTitle(otherLibrary(from))));
    m_list->setHeaderLabels({tr("Material"), tr("State"), tr("Here"), tr("There")});
    compare(ids);
    showCounts();
    layOut();
}

void ImportDialog::compare(const QList<int>& ids)
{
    const QSet<int> wanted(ids.begin(), ids.end());
    QList<Materials::Material> sources;
    for (const Materials::Material& material : MaterialLibraries::materials(m_from)) {
        if (wanted.isEmpty() || wanted.contains(material->id)) {
            sources.append(material);
        }
    }
    m_comparisons = Materials::compareMaterials(sources, MaterialLibraries::materials(otherLibrary(m_from)));
    for (const Comparison& comparison : qAsConst(m_comparisons)) {
        addComparison(comparison);
    }
}

void ImportDialog::addComparison(const Comparison& comparison)
{
    const QString name = QStringLiteral("%1  %2").arg(comparison.source->englishName, comparison.source->chineseName);
    auto* const item = new QTreeWidgetItem(m_list, {name, stateTitle(comparison.state)});
    if (comparison.state == Comparison::New || comparison.state == Comparison::Changed) {
        // What is in the other library already is replaced only when the user says so.
        item->setCheckState(0, comparison.state == Comparison::New ? Qt::Checked : Qt::Unchecked);
    }
    if (comparison.state != Comparison::Changed) {
        return;
    }
    for (const Materials::Difference& difference : Materials::differences(*comparison.source, *comparison.target)) {
        new QTreeWidgetItem(item, {difference.member, QString(), difference.source, difference.target});
    }
    item->setExpanded(true);
}

void ImportDialog::showCounts()
{
    int counts[4] = {0, 0, 0, 0};
    for (const Comparison& comparison : qAsConst(m_comparisons)) {
        ++counts[comparison.state];
    }
    m_counts->setText(
        tr("%1 new, %2 same, %3 changed, %4 refused. Checked materials are copied; a changed one replaces "
           "the material of its name.")
            .arg(counts[Comparison::New])
            .arg(counts[Comparison::Same])
            .arg(counts[Comparison::Changed])
            .arg(counts[Comparison::Refused]));
}

void ImportDialog::layOut()
{
    auto* const buttons = new QDialogButtonBox(QDialogButtonBox::Ok | QDialogButtonBox::Cancel, this);
    buttons->button(QDialogButtonBox::Ok)->setText(tr("Copy"));
    connect(buttons, &QDialogButtonBox::accepted, this, &ImportDialog::accept);
    connect(buttons, &QDialogButtonBox::rejected, this, &ImportDialog::reject);
    m_list->header()->resizeSections(QHeaderView::ResizeToContents);
    m_counts->setWordWrap(true);
    auto* const whole = new QVBoxLayout(this);
    whole->addWidget(m_list);
    whole->addWidget(m_counts);
    whole->addWidget(buttons);
    resize(fontMetrics().averageCharWidth() * 100, fontMetrics().height() * 30);
}

void ImportDialog::accept()
{
    QList<int> newIDs;
    QList<QPair<int, int>> updates;
    for (int i = 0; i < m_comparisons.size(); ++i) {
        const Comparison& comparison = m_comparisons.at(i);
        if (m_list->topLevelItem(i)->checkState(0) != Qt::Checked) {
            continue;
        }
        if (comparison.state == Comparison::New) {
            newIDs.append(comparison.source->id);
        } else {
            updates.append({comparison.source->id, comparison.target->id});
        }
    }
    if (!newIDs.isEmpty() || !updates.isEmpty()) {
        MaterialLibraries::instance()->import(m_from, newIDs, updates);
    }
    QDialog::accept();
}

} // namespace Workbench
