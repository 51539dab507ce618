// SPDX-FileCopyrightText: 2026 DataManager contributors
// SPDX-License-Identifier: BSD-3-Clause

// How long it takes, and how much memory, to get from a mesh file to its eleven measures; single thread.
//   bench_meshquality [--runs N] MESH...

#include "Contender.h"
#include "Measurement.h"

#include <QCoreApplication>
#include <QFile>
#include <QFileInfo>

#include <cstdio>

namespace {

struct Contender
{
    const char* name;
    double (*run)(const std::string&);
};

constexpr Contender contenders[] = {{"(a) getInput", streamedFeatures},
                                    {"(b) public calls", publicCalls},
                                    {"(c) fscanf and VTK", vtkMeasures},
                                    {"(d) numbers only", numbersOnly},
                                    {"(e) plain Qt", plainQt}};

// By a symbolic link, so that the library finds the mesh where it looks.
bool install(const QString& mesh)
{
    const QString place = QCoreApplication::applicationDirPath() + QStringLiteral("/../temp/mesh.msh");
    QFile::remove(place);
    return QFile::link(QFileInfo(mesh).absoluteFilePath(), place);
}

void compare(const QString& mesh, int runs)
{
    const std::string path = QFile::encodeName(mesh).toStdString();
    const double megabytes = static_cast<double>(QFileInfo(mesh).size()) / 1e6;
    std::printf("%s, %.1f MB\n", path.c_str(), megabytes);
    double reference = 0.0;
    for (const Contender& contender : contenders) {
        const Measurement result = measure([&] { return contender.run(path); }, runs);
        reference = reference > 0.0 ? reference : result.processorSeconds;
        std::printf("  %-20s %8.3f s (processor %8.3f s) %8.1f MB/s %8.1f MB peak  %6.2f times (a)  figure %.9g\n",
                    contender.name, result.seconds, result.processorSeconds, megabytes / result.processorSeconds,
                    result.peakBytes / 1e6, result.processorSeconds / reference, result.figure);
    }
}

} // namespace

int main(int argc, char* argv[])
{
    const QCoreApplication application(argc, argv);
    QStringList meshes = QCoreApplication::arguments().mid(1);
    int runs = 5;
    std::setvbuf(stdout, nullptr, _IOLBF, 0);
    if (meshes.value(0) == QLatin1String("--runs")) {
        runs = qMax(1, meshes.value(1).toInt());
        meshes = meshes.mid(2);
    }
    for (const QString& mesh : std::as_const(meshes)) {
        if (!install(mesh)) {
            std::fprintf(stderr, "cannot put %s in place\n", qPrintable(mesh));
            return 1;
        }
        compare(mesh, runs);
    }
    return 0;
}
