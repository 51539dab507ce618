// SPDX-FileCopyrightText: 2026 DataManager contributors
// SPDX-License-Identifier: BSD-3-Clause

#include <workbench/material/MaterialDialog.h>

#include <materials/MaterialMembers.h>
#include <workbench/dialog/Refusal.h>
#include <workbench/material/MaterialLibraries.h>
#include <workbench/material/MaterialName.h>
#include <workbench/material/MaterialNumber.h>
#include <workbench/material/NumberField.h>
#include <workbench/material/PropertyEditor.h>

#include <QDialogButtonBox>
#include <QEvent>
#include <QFormLayout>
#include <QLineEdit>
#include <QTabBar>
#include <QTabWidget>

#include <algorithm>

namespace Workbench {

void MaterialDialog::openFor(BaseModule::MaterialLibType type, int id, QWidget* parent)
{
    const Materials::Material material = MaterialLibraries::material(type, id);
    if (id != 0 && material.isNull()) {
        return;
    }
    auto* const dialog = new MaterialDialog(type, material, parent);
    dialog->setAttribute(Qt::WA_DeleteOnClose);
    dialog->open();
}

MaterialDialog::MaterialDialog(BaseModule::MaterialLibType type, const Materials::Material& material, QWidget* parent)
    : QDialog(parent), m_type(type), m_id(material.isNull() ? 0 : material->id), m_englishName(new QLineEdit(this)),
      m_chineseName(new QLineEdit(this)), m_tabs(new QTabWidget(this)), m_refusal(new Refusal(this)),
      m_labels(new QFormLayout)
{
    setObjectName(QStringLiteral("materialDialog"));
    m_englishName->setObjectName(QStringLiteral("englishName"));
    m_chineseName->setObjectName(QStringLiteral("chineseName"));
    m_tabs->setObjectName(QStringLiteral("properties"));
    if (!material.isNull()) {
        m_englishName->setText(material->englishName);
        m_chineseName->setText(material->chineseName);
    }
    createEditors(material);
    layOut();
    retranslate();
    showAllTabs();
    checkNumber();
}

void MaterialDialog::createEditors(const Materials::Material& material)
{
    for (int i = 0; i < Materials::propertyMembers.size(); ++i) {
        const auto property =
            material.isNull() ? PropertyEditor::Property() : (*material).*Materials::propertyMembers.at(i);
        m_editors.append(new PropertyEditor(property, this));
        m_editors.last()->setObjectName(QStringLiteral("property%1").arg(i + 1));
        m_tabs->addTab(m_editors.last(), QString());
        connect(m_editors.last(), &PropertyEditor::titleChanged, this, [this, i] { nameTab(i); });
    }
}

void MaterialDialog::layOut()
{
    m_labels.addRow(m_englishName);
    m_labels.addRow(m_chineseName);
    auto* const buttons = new QDialogButtonBox(QDialogButtonBox::Ok | QDialogButtonBox::Cancel, this);
    connect(buttons, &QDialogButtonBox::accepted, this, &MaterialDialog::accept);
    connect(buttons, &QDialogButtonBox::rejected, this, &MaterialDialog::reject);
    auto* const whole = new QVBoxLayout(this);
    whole->addLayout(m_labels.form());
    whole->addWidget(m_tabs);
    whole->addWidget(m_refusal);
    whole->addWidget(buttons);
}

void MaterialDialog::retranslate()
{
    setWindowTitle(m_id == 0 ? tr("New material - %1").arg(libraryTitle(m_type))
                             : tr("Material %1 - %2").arg(m_id).arg(libraryTitle(m_type)));
    m_labels.setTexts({tr("&English name"), tr("&Chinese name")});
    m_tabs->setAccessibleName(tr("Properties"));
    for (int i = 0; i < m_tabs->count(); ++i) {
        nameTab(i);
    }
}

QString MaterialDialog::propertyName(int index) const
{
    const QString title = m_editors.at(index)->title();
    return title.isEmpty() ? tr("Property %1").arg(index + 1) : title;
}

// A label may be of any length, and hold what tabs take for the mark of a key.
void MaterialDialog::nameTab(int index)
{
    constexpr int mostCharacters = 30;
    const QFontMetrics metrics = m_tabs->fontMetrics();
    const QString name =
        metrics.elidedText(propertyName(index), Qt::ElideRight, mostCharacters * metrics.averageCharWidth());
    m_tabs->setTabText(index, QString(name).replace(QLatin1Char('&'), QStringLiteral("&&")));
    m_tabs->setTabToolTip(index, tr("Property %1").arg(index + 1));
}

// By itself a dialog takes no notice of how wide its tabs are.
void MaterialDialog::showAllTabs()
{
    constexpr int mostWidth = 1100;
    const int margins = sizeHint().width() - m_tabs->sizeHint().width();
    const int wanted = m_tabs->tabBar()->sizeHint().width() + margins;
    resize(sizeHint().expandedTo(QSize(std::min(wanted, mostWidth), 0)));
}

void MaterialDialog::changeEvent(QEvent* event)
{
    if (event->type() == QEvent::LanguageChange) {
        retranslate();
        if (!m_refusal->text().isEmpty()) {
            check();
        }
    }
    QDialog::changeEvent(event);
}

void MaterialDialog::accept()
{
    if (check()) {
        apply();
        QDialog::accept();
    }
}

bool MaterialDialog::checkNumber()
{
    const QString reason = m_id == 0 ? materialNumberRefusal(m_type, 1) : QString();
    if (!reason.isEmpty()) {
        m_refusal->tell(reason, m_englishName);
    }
    return reason.isEmpty();
}

bool MaterialDialog::check()
{
    m_refusal->clear();
    if (!checkNumber()) {
        return false;
    }
    for (QLineEdit* const field : {m_englishName, m_chineseName}) {
        const QString reason = materialNameRefusal(m_type, field->text(), m_id);
        if (!reason.isEmpty()) {
            m_refusal->tell(reason, field);
            return false;
        }
    }
    for (int i = 0; i < m_editors.size(); ++i) {
        if (NumberField* const field = m_editors.at(i)->refusedField()) {
            m_tabs->setCurrentIndex(i);
            m_refusal->tell(tr("%1, component %2: %3").arg(propertyName(i), field->objectName(), field->refusal()),
                            field);
            return false;
        }
    }
    return true;
}

void MaterialDialog::apply()
{
    DataModel::MaterialData content;
    content.englishName = m_englishName->text();
    content.chineseName = m_chineseName->text();
    for (int i = 0; i < m_editors.size(); ++i) {
        content.*Materials::propertyMembers.at(i) = m_editors.at(i)->property();
    }
    if (m_id == 0) {
        MaterialLibraries::instance()->create(m_type, content);
    } else {
        MaterialLibraries::instance()->update(m_type, m_id, content);
    }
}

} // namespace Workbench
