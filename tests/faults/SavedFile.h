// SPDX-FileCopyrightText: 2026 DataManager contributors
// SPDX-License-Identifier: BSD-3-Clause

#pragma once

#include <support/FilesAndLog.h>

#include <QDir>
#include <QProcess>
#include <QProcessEnvironment>
#include <QRegularExpression>
#include <QTemporaryDir>

/// The program `filesaver` in an application's layout of its own, and one of the files it writes.
class SavedFile
{
public:
    /// `kind` as `filesaver` knows it. The layout is made below `place`, in a directory of this name.
    SavedFile(const QString& place, const QString& kind, const QString& name = QStringLiteral("application"))
        : m_directory(place + QStringLiteral("/savedfile-XXXXXX")), m_kind(kind),
          m_root(m_directory.path() + QLatin1Char('/') + name)
    {
        QDir(m_root).mkpath(QStringLiteral("bin/ConfigFiles"));
        QDir(m_root).mkpath(QStringLiteral("temp"));
        QFile::copy(QStringLiteral(FILE_SAVER), program());
        // Also for a user other than the one who runs the tests.
        for (const char* const path : {"/..", "", "/bin", "/bin/ConfigFiles", "/temp"}) {
            QFile::setPermissions(m_root + QString::fromLatin1(path), QFile::Permissions(0x7777));
        }
    }

    QString program() const { return m_root + QStringLiteral("/bin/filesaver"); }

    /// The directory that the file stands in.
    QString directory() const
    {
        const bool isBesideProgram = m_kind == QLatin1String("software") || m_kind == QLatin1String("example");
        return m_root + (isBesideProgram ? QStringLiteral("/bin/ConfigFiles") : QStringLiteral("/temp"));
    }
    QString name() const
    {
        if (m_kind == QLatin1String("plain")) {
            return m_kind;
        }
        if (m_kind == QLatin1String("mesh")) {
            return QStringLiteral("mesh.msh");
        }
        if (m_kind == QLatin1String("coordinates")) {
            return QStringLiteral("RelativeCoordinateSystemDate.json");
        }
        return m_kind == QLatin1String("example") ? QStringLiteral("ExampleLibrary.json")
                                                  : QStringLiteral("MaterialLibrary.json");
    }
    QString path() const { return directory() + QLatin1Char('/') + name(); }

    /// The line of a save that fails; the file of the coordinate systems has none.
    QString failureLine() const
    {
        if (m_kind == QLatin1String("example")) {
            return QStringLiteral("write Example file fail, please check path: ") + loggedPath();
        }
        if (m_kind == QLatin1String("plain")) {
            return QStringLiteral("cannot write");
        }
        return m_kind == QLatin1String("coordinates")
                   ? QString()
                   : QStringLiteral("Write %1 material library file fail, please check path: %2.")
                         .arg(m_kind, loggedPath());
    }

    QStringList saveArguments(QChar letter, int length) const
    {
        return {QStringLiteral("save"), m_kind, letter, QString::number(length)};
    }
    QStringList loopArguments(int length) const { return {QStringLiteral("loop"), m_kind, QString::number(length)}; }
    QStringList loadArguments() const { return {QStringLiteral("load"), m_kind}; }
    QStringList memoryArguments() const { return {QStringLiteral("memory"), m_kind}; }

    /// Adds to the environment of the program.
    void setVariable(const char* name, const QString& value) { m_environment.insert(QString::fromLatin1(name), value); }

    /// The program gives up root's rights, if it has them.
    void becomeNobody() { setVariable("FILESAVER_NOBODY", QStringLiteral("1")); }

    /// What a call of the program logs.
    QString log(const QStringList& arguments) const { return run(arguments).log; }
    /// What a new start finds.
    QString loaded() const { return run(loadArguments()).output; }
    QString output(const QStringList& arguments) const { return run(arguments).output; }

    /// The longest text whose file has at most this size. Where the file is enciphered, the text alone has it.
    int lengthFor(int size) const
    {
        log(saveArguments(QLatin1Char('o'), 1));
        const auto overhead = int(QFileInfo(path()).size()) - 1;
        return m_kind == QLatin1String("project") ? size : qMax(1, size - overhead);
    }

    /// The names in the directory of the file.
    QStringList neighbours() const
    {
        return QDir(directory()).entryList(QDir::AllEntries | QDir::Hidden | QDir::System | QDir::NoDotAndDotDot);
    }

    /// Puts the file back as it was, alone in its directory.
    void restore(const QByteArray& content) const
    {
        for (const QString& neighbour : neighbours()) {
            QFile::remove(directory() + QLatin1Char('/') + neighbour);
        }
        writeContent(path(), content);
    }

private:
    struct Run
    {
        QString output;
        QString log;
    };

    Run run(const QStringList& arguments) const
    {
        QProcess process;
        process.setProcessEnvironment(m_environment);
        process.start(program(), arguments);
        if (!process.waitForFinished(120000) || process.exitStatus() != QProcess::NormalExit) {
            return {QStringLiteral("crashed"), QStringLiteral("crashed")};
        }
        // Built for coverage, a process without rights says that it cannot write its counters.
        static const QRegularExpression counters(QStringLiteral("^profiling:.*\n?"),
                                                 QRegularExpression::MultilineOption);
        return {QString::fromLocal8Bit(process.readAllStandardOutput()).trimmed(),
                QString::fromLocal8Bit(process.readAllStandardError()).remove(counters).trimmed()};
    }

    /// Paths of the project are put together from that of the program.
    QString loggedPath() const
    {
        return m_kind == QLatin1String("project") ? m_root + QStringLiteral("/bin/../temp/") + name() : path();
    }

    QTemporaryDir m_directory;
    QString m_kind;
    QString m_root;
    QProcessEnvironment m_environment = QProcessEnvironment::systemEnvironment();
};
