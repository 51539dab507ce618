// SPDX-FileCopyrightText: 2026 DataManager contributors
// SPDX-License-Identifier: BSD-3-Clause

#include <workbench/material/ImportDialog.h>

#include <materials/Difference.h>
#include <workbench/dialog/Refusal.h>
#include <workbench/material/ImportRefusal.h>
#include <workbench/material/MaterialLibraries.h>
#include <workbench/material/MaterialName.h>

#include <datamodel/MaterialData.h>

#include <QDialogButtonBox>
#include <QEvent>
#include <QHeaderView>
#include <QLabel>
#include <QPushButton>
#include <QSet>
#include <QSignalBlocker>
#include <QTreeWidget>
#include <QVBoxLayout>

namespace Workbench {

namespace {

using Materials::Comparison;

QString stateTitle(const Comparison& comparison)
{
    switch (comparison.state) {
    case Comparison::New:
        return ImportDialog::tr("new");
    case Comparison::Same:
        return ImportDialog::tr("same");
    case Comparison::Changed:
        return ImportDialog::tr("changed");
    case Comparison::Refused:
        return comparison.holder.isNull() ? ImportDialog::tr("refused: reserved name")
                                          : ImportDialog::tr("refused: material %1 there is called '%2', too")
                                                .arg(comparison.holder->id)
                                                .arg(comparison.takenName);
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
    : QDialog(parent), m_from(from), m_list(new QTreeWidget(this)), m_counts(new QLabel(this)),
      m_refusal(new Refusal(this)), m_copy(nullptr)
{
    setObjectName(QStringLiteral("importDialog"));
    m_list->setObjectName(QStringLiteral("comparisons"));
    m_counts->setObjectName(QStringLiteral("counts"));
    m_list->setColumnCount(4);
    compare(ids);
    layOut();
    retranslate();
    m_list->header()->resizeSections(QHeaderView::ResizeToContents);
    connect(m_list, &QTreeWidget::itemChanged, this, &ImportDialog::check);
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
    auto* const item = new QTreeWidgetItem(m_list, {name});
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
    m_copy = buttons->button(QDialogButtonBox::Ok);
    connect(buttons, &QDialogButtonBox::accepted, this, &ImportDialog::accept);
    connect(buttons, &QDialogButtonBox::rejected, this, &ImportDialog::reject);
    m_counts->setWordWrap(true);
    auto* const whole = new QVBoxLayout(this);
    whole->addWidget(m_list);
    whole->addWidget(m_counts);
    whole->addWidget(m_refusal);
    whole->addWidget(buttons);
    resize(fontMetrics().averageCharWidth() * 100, fontMetrics().height() * 30);
}

void ImportDialog::retranslate()
{
    setWindowTitle(tr("Copy from: %1, to: %2").arg(libraryTitle(m_from), libraryTitle(otherLibrary(m_from))));
    m_list->setHeaderLabels({tr("Material"), tr("State"), tr("Here"), tr("There")});
    m_list->setAccessibleName(tr("Comparison"));
    const QSignalBlocker unchanged(m_list);
    for (int i = 0; i < m_comparisons.size(); ++i) {
        m_list->topLevelItem(i)->setText(1, stateTitle(m_comparisons.at(i)));
    }
    m_copy->setText(tr("Copy"));
    showCounts();
    check();
}

// After the buttons, which write their own texts again.
void ImportDialog::changeEvent(QEvent* event)
{
    if (event->type() == QEvent::LanguageChange) {
        QMetaObject::invokeMethod(this, &ImportDialog::retranslate, Qt::QueuedConnection);
    }
    QDialog::changeEvent(event);
}

QList<Comparison> ImportDialog::chosen() const
{
    QList<Comparison> chosen;
    for (int i = 0; i < m_comparisons.size(); ++i) {
        if (m_list->topLevelItem(i)->checkState(0) == Qt::Checked) {
            chosen.append(m_comparisons.at(i));
        }
    }
    return chosen;
}

bool ImportDialog::check()
{
    const QString reason = importRefusal(otherLibrary(m_from), chosen());
    if (reason.isEmpty()) {
        m_refusal->clear();
    } else {
        m_refusal->tell(reason, m_list);
    }
    return reason.isEmpty();
}

void ImportDialog::accept()
{
    if (!check()) {
        return;
    }
    QList<int> newIDs;
    QList<QPair<int, int>> updates;
    for (const Comparison& comparison : chosen()) {
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
