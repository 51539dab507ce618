// SPDX-FileCopyrightText: 2026 DataManager contributors
// SPDX-License-Identifier: BSD-3-Clause

// Runs a fuzz target over the files of a folder: replay_NAME FOLDER. Fails when there are none.

#include <QDir>
#include <QFile>

#include <csignal>
#include <cstdint>
#include <cstdio>
#include <cstdlib>

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size);

int main(int argc, char* argv[])
{
    // An abort that a test expects is told from a crash by its exit code.
    std::signal(SIGABRT, [](int) { std::_Exit(1); });
    const QDir folder(argc > 1 ? QFile::decodeName(argv[1]) : QString());
    const QStringList names = folder.entryList(QDir::Files, QDir::Name);
    for (const QString& name : names) {
        QFile file(folder.filePath(name));
        if (!file.open(QIODevice::ReadOnly)) {
            std::fprintf(stderr, "cannot read %s\n", qPrintable(name));
            return 1;
        }
        const QByteArray content = file.readAll();
        std::printf("%s\n", qPrintable(name));
        std::fflush(stdout);
        LLVMFuzzerTestOneInput(reinterpret_cast<const std::uint8_t*>(content.constData()),
                               static_cast<std::size_t>(content.size()));
    }
    std::printf("%d inputs\n", static_cast<int>(names.size()));
    return names.isEmpty() ? 1 : 0;
}
