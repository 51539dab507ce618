// SPDX-FileCopyrightText: 2026 DataManager contributors
// SPDX-License-Identifier: BSD-3-Clause

#include "MaterialFixture.h"

#include <basemodule/GlobalConfig.h>
#include <basemodule/GlobalHelper.h>
#include <basemodule/IBaseSignal.h>
#include <configoption/ConfigManager.h>
#include <configoption/TextCipher.h>

#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QtTest>

using BaseModule::GlobalHelper;
using DataManager::MaterialLibraryManager;

MaterialFixture::MaterialFixture() : m_projectDirectory(std::make_unique<QTemporaryDir>())
{
    GlobalConfig::setIsDevelop(false);
    ConfigOption::ConfigManager::getInstance()->setLanguage(QStringLiteral("English"));
    GlobalHelper::setProjectTempIODir(m_projectDirectory->path());
    QDir configuration(QCoreApplication::applicationDirPath() + QStringLiteral("/ConfigFiles"));
    configuration.removeRecursively();
    configuration.mkpath(QStringLiteral("."));
    newManager();
}

MaterialFixture::~MaterialFixture()
{
    for (Manager* const manager : m_managers) {
        delete manager;
    }
}

MaterialFixture::Manager* MaterialFixture::newManager()
{
    if (!QFile::exists(softwarePath())) {
        const QString line = QStringLiteral("Read software material library file fail, please check path: %1");
        QTest::ignoreMessage(QtDebugMsg, qPrintable(line.arg(softwarePath())));
    }
    m_managers.push_back(new Manager);
    return m_managers.back();
}

QString MaterialFixture::softwarePath()
{
    return QCoreApplication::applicationDirPath() + QStringLiteral("/ConfigFiles/MaterialLibrary.json");
}

QString MaterialFixture::projectPath() const
{
    return m_projectDirectory->path() + QStringLiteral("/MaterialLibrary.json");
}

MaterialFixture::Property MaterialFixture::property(const QString& label, double first)
{
    const auto record = Property::create();
    record->label = label;
    record->components = {first, 0, 0, 0, first, 0, 0, 0, first};
    return record;
}

void MaterialFixture::createProject(const QString& name)
{
    manager().createProjectMat(QStringLiteral("中") + name, name, property(name, 1), {}, {}, {}, {});
}

void MaterialFixture::createSoftware(const QString& name)
{
    manager().createSoftwareMat(QStringLiteral("中") + name, name, property(name, 1), {}, {}, {}, {});
}

QString MaterialFixture::state(Manager& manager, BaseModule::MaterialLibType type)
{
    QString text;
    const auto materials = manager.getMatLibDataByType(type);
    for (auto entry = materials.constBegin(); entry != materials.constEnd(); ++entry) {
        text += QStringLiteral("%1:%2%3 ")
                    .arg(QString::number(entry.key()), entry.value()->englishName,
                         entry.value()->isDeleted ? QStringLiteral("(deleted)") : QString());
    }
    return text + QStringLiteral("next %1").arg(manager.getNextMatIDByType(type));
}

HubLog::HubLog(MaterialLibraryManager& manager)
{
    auto* const hub = BaseModule::IBaseSignal::getInstance();
    const auto note = [this, &manager](const QString& line) {
        m_lines.append(line + QStringLiteral(" | ") + MaterialFixture::state(manager, BaseModule::ProjectLib));
    };
    connect(hub, &BaseModule::IBaseSignal::signal_delMatUpdateGeometryData, this,
            [note](int id) { note(QStringLiteral("deleted %1").arg(id)); });
    connect(hub, &BaseModule::IBaseSignal::signal_showMessageType, this,
            [note](int type, const QString& text) { note(QStringLiteral("message %1 %2").arg(type).arg(text)); });
}

QStringList HubLog::take()
{
    QStringList lines;
    lines.swap(m_lines);
    return lines;
}

QByteArray enciphered(const QByteArray& json)
{
    return ConfigOption::TextCipher::getInstance()->encryptData_CBC(QString::fromUtf8(json)).toUtf8();
}

QByteArray decipheredContentOf(const QString& path)
{
    return ConfigOption::TextCipher::getInstance()->decryptData_CBC(QString::fromUtf8(contentOf(path))).toUtf8();
}

void expectRefusedCipherText()
{
    expectLine(QStringLiteral("Decrypt text fail: it was not encrypted with this key."));
}
