// SPDX-FileCopyrightText: 2026 DataManager contributors
// SPDX-License-Identifier: BSD-3-Clause

// A process for others to disturb: saves and loads one of the files that the libraries write. It is copied into an
// application's layout: bin/filesaver, bin/ConfigFiles, temp.
//
//   filesaver save KIND LETTER LENGTH   saves a record whose text is LENGTH times LETTER; prints the log of the save
//   filesaver loop KIND LENGTH          saves the letters a to z in turn until it is killed, a line printed before each
//   filesaver load KIND                 starts anew and prints what it finds: "LETTER LENGTH", "nothing" or "mixed"
//   filesaver memory KIND               loads, and prints by how many bytes the most memory used grew
// KIND is software, project, example or coordinates, or plain for a file without any record; mesh can only be loaded.
// FILESAVER_FILE_SIZE limits the size of files while saving, FILESAVER_PROJECT names another project directory, and
// FILESAVER_MEMORY limits the address space, beyond what is in use, while loading or saving. With FILESAVER_NOBODY the
// process gives up root's rights. FILESAVER_LOG prints the log of everything.

#include <datamanager/coordinates/RelativeCoordinateSystem.h>
#include <datamanager/coordinates/RelativeCoordinateSystemDate.h>
#include <datamanager/material/ExampleLibraryManager.h>
#include <datamanager/material/MaterialLibraryManager.h>
#include <datamanager/meshquality/MeshQualityPredict.h>
#include <datamanager/meshquality/MeshQualityReport.h>

#include <basemodule/GlobalHelper.h>
#include <datamodel/ExampleLibData.h>
#include <datamodel/MaterialData.h>

#include <QCoreApplication>
#include <QFile>

#include <csignal>
#include <cstdio>
#include <functional>
#include <grp.h>
#include <map>
#include <sys/resource.h>
#include <unistd.h>

using BaseModule::GlobalHelper;
using DataManager::ExampleLibraryManager;
using DataManager::MaterialLibraryManager;
using DataManager::RelativeCoordinateSystem;
using DataManager::RelativeCoordinateSystemDate;

namespace {

bool isSaving = false;

void logWhileSaving(QtMsgType, const QMessageLogContext&, const QString& line)
{
    if (isSaving || qEnvironmentVariableIsSet("FILESAVER_LOG")) {
        std::fprintf(stderr, "%s\n", qPrintable(line));
    }
}

MaterialLibraryManager& materials()
{
    return *MaterialLibraryManager::getInstance();
}

ExampleLibraryManager& examples()
{
    return *ExampleLibraryManager::getInstance();
}

RelativeCoordinateSystemDate& systems()
{
    return *RelativeCoordinateSystemDate::getInstance();
}

QString plainPath()
{
    return GlobalHelper::getProjectTempIODir() + QStringLiteral("/plain");
}

/// One file: how it is opened, changed and read back. Opening is no part of the save.
struct Kind
{
    std::function<void()> open;
    std::function<void(const QString&)> save;
    std::function<QString()> text; ///< null when there is no record
};

/// Registers the global system where nothing can be written, because appending writes the project's file.
void openSystems()
{
    const QString project = GlobalHelper::getProjectTempIODir();
    GlobalHelper::setProjectTempIODir(QStringLiteral("/nonexistent"));
    systems().appendCoordinateSystem(new RelativeCoordinateSystem);
    GlobalHelper::setProjectTempIODir(project);
}

void saveSystem(const QString& text)
{
    while (systems().getRelativeCoordinateSystemDateCount() > 1) {
        systems().removeCoordinateSystemByIndex(1);
    }
    auto* const system = new RelativeCoordinateSystem;
    system->setID(1);
    system->setName(text);
    systems().appendCoordinateSystem(system);
}

QString systemText()
{
    systems().readConfig();
    const auto* const system = systems().getCoordinateSystemByIndex(1);
    return system == nullptr ? QString() : system->getName();
}

void savePlain(const QString& text)
{
    if (!GlobalHelper::writeFile(plainPath(), text.toLatin1(), QIODevice::WriteOnly | QIODevice::Truncate)) {
        std::fprintf(stderr, "cannot write\n");
    }
}

QString plainText()
{
    QByteArray content;
    return GlobalHelper::readFile(plainPath(), content) ? QString::fromLatin1(content) : QString();
}

void saveSoftware(const QString& text)
{
    materials().hasSoftwareMatID(1) ? materials().updateSoftwareMat(1, {}, text, {}, {}, {}, {}, {})
                                    : materials().createSoftwareMat({}, text, {}, {}, {}, {}, {});
}

void saveProject(const QString& text)
{
    materials().hasProjectMatID(1) ? materials().updateProjectMat(1, {}, text, {}, {}, {}, {}, {})
                                   : materials().createProjectMat({}, text, {}, {}, {}, {}, {});
}

void saveExample(const QString& text)
{
    const auto example = QSharedPointer<DataModel::ExampleData>::create();
    example->englishTitle = text;
    examples().getExampleLibData()->exampleList = {example};
    examples().saveData();
}

QString exampleText()
{
    const auto list = examples().getExampleLibData()->exampleList;
    return list.isEmpty() ? QString() : list.first()->englishTitle;
}

QString nameOf(const QSharedPointer<DataModel::MaterialData>& material)
{
    return material.isNull() ? QString() : material->englishName;
}

/// All that is read of a mesh: its tables, its features and its report. Not empty when there are tetrahedra.
QString meshText()
{
    const QString path = QCoreApplication::applicationDirPath() + QStringLiteral("/../temp/mesh.msh");
    QVector<QVector<double>> nodes;
    QVector<QVector<int>> elements;
    DataManager::MeshQualityPredict* const predict = DataManager::MeshQualityPredict::getinstance();
    predict->get_Nodes_Elements(path, nodes, elements);
    float features[11] = {};
    predict->getInput(features);
    DataManager::MeshQualityReport report;
    report.measure(path);
    return elements.isEmpty() ? QString() : QStringLiteral("mesh");
}

const std::map<QString, Kind> kinds = {
    {QStringLiteral("software"),
     {[] { materials(); }, saveSoftware, [] { return nameOf(materials().getSoftwareMatByID(1)); }}},
    {QStringLiteral("project"),
     {[] { materials().initProjectMaterial(); }, saveProject, [] { return nameOf(materials().getProjectMatByID(1)); }}},
    {QStringLiteral("example"), {[] { examples(); }, saveExample, exampleText}},
    {QStringLiteral("coordinates"), {openSystems, saveSystem, systemText}},
    {QStringLiteral("plain"), {[] { plainText(); }, savePlain, plainText}},
    {QStringLiteral("mesh"), {[] {}, [](const QString&) {}, meshText}},
};

/// Here and not before the start, because the libraries may lie where only root can read.
bool becomeNobody()
{
    constexpr uid_t nobody = 65534;
    return !qEnvironmentVariableIsSet("FILESAVER_NOBODY") || ::geteuid() != 0 ||
           (::setgroups(0, nullptr) == 0 && ::setresgid(nobody, nobody, nobody) == 0 &&
            ::setresuid(nobody, nobody, nobody) == 0);
}

void limitFileSize()
{
    if (qEnvironmentVariableIsSet("FILESAVER_FILE_SIZE")) {
        const auto size = rlim_t(qEnvironmentVariableIntValue("FILESAVER_FILE_SIZE"));
        const rlimit limit = {size, size};
        std::signal(SIGXFSZ, SIG_IGN);
        ::setrlimit(RLIMIT_FSIZE, &limit);
    }
}

/// A number of the process's status, in bytes.
qint64 statusOf(const QByteArray& name)
{
    QFile file(QStringLiteral("/proc/self/status"));
    const bool isOpen = file.open(QIODevice::ReadOnly);
    for (const QByteArray& line : (isOpen ? file.readAll() : QByteArray()).split('\n')) {
        if (line.startsWith(name + ':')) {
            return line.mid(name.size() + 1).simplified().split(' ').first().toLongLong() * 1024;
        }
    }
    return -1;
}

void limitMemory()
{
    if (qEnvironmentVariableIsSet("FILESAVER_MEMORY")) {
        const auto size = rlim_t(statusOf("VmSize") + qEnvironmentVariableIntValue("FILESAVER_MEMORY"));
        const rlimit limit = {size, size};
        ::setrlimit(RLIMIT_AS, &limit);
    }
}

void save(const Kind& kind, const QString& letter, int length)
{
    const QString text = letter.repeated(length);
    kind.open();
    limitFileSize();
    limitMemory();
    // Marks in a trace of system calls.
    QFile::exists(QStringLiteral("/save-begins-here"));
    isSaving = true;
    kind.save(text);
    isSaving = false;
    QFile::exists(QStringLiteral("/save-ends-here"));
}

[[noreturn]] void saveForEver(const Kind& kind, int length)
{
    kind.open();
    for (int i = 0;; ++i) {
        std::puts("saving");
        std::fflush(stdout);
        kind.save(QString(length, QLatin1Char(char('a' + i % 26))));
    }
}

QString description(const QString& text)
{
    if (text.isEmpty()) {
        return QStringLiteral("nothing");
    }
    return text.count(text.at(0)) == text.size() ? QStringLiteral("%1 %2").arg(text.at(0)).arg(text.size())
                                                 : QStringLiteral("mixed");
}

} // namespace

int main(int argc, char** argv)
{
    if (!becomeNobody()) {
        return 1;
    }
    const QCoreApplication application(argc, argv);
    qInstallMessageHandler(logWhileSaving);
    const QStringList arguments = QCoreApplication::arguments();
    const QString command = arguments.value(1);
    const Kind& kind = kinds.at(arguments.value(2));
    GlobalHelper::setProjectTempIODir(qEnvironmentVariable("FILESAVER_PROJECT"));
    if (command == QLatin1String("save")) {
        save(kind, arguments.value(3), arguments.value(4).toInt());
    } else if (command == QLatin1String("loop")) {
        saveForEver(kind, arguments.value(3).toInt());
    } else {
        const qint64 before = statusOf("VmHWM");
        limitMemory();
        kind.open();
        const QString text = kind.text();
        std::puts(command == QLatin1String("load") ? qPrintable(description(text))
                                                   : qPrintable(QString::number(statusOf("VmHWM") - before)));
    }
    return 0;
}
