#include <basemodule/GlobalHelper.h>
#include <basemodule/IBaseSignal.h>
#include <datamanager/material/MaterialLibraryManager.h>
#include <datamanager/meshquality/MeshQualityPredict.h>
#include <datamanager/meshquality/MeshQualityReport.h>
#include <datamanager/meshquality/QualityModelCard.h>
#include <datamanager/selection/SelectedDataManager.h>
#include <datamodel/MaterialData.h>
#include <datamodel/MaterialPropertyData.h>
#include <datamodel/SelectedDataBase.h>

#include <QCoreApplication>
#include <QDir>
#include <QTextStream>

using BaseModule::GlobalHelper;
using BaseModule::IBaseSignal;

static QTextStream out(stdout);

// A click in the view selects an object; the hub tells everybody who listens.
static void select()
{
    const auto redraw = [](int model, int first, int second, bool isShown) {
        out << "  view: object " << first << ", " << second << (isShown ? " lights up" : " goes dark")
            << " under select model " << model << '\n';
    };
    QObject::connect(IBaseSignal::getInstance(), &IBaseSignal::signal_updateViewObjectState, redraw);

    auto* const selection = DataManager::SelectedDataManager::getInstance();
    selection->init();
    selection->setSelectModelInMainWindow(BaseModule::GeometryBody);
    selection->clickViewObject(3, -1);
    selection->clickViewObject(5, -1);
    selection->clickViewObject(3, -1);
    out << "  selected: " << selection->getDataCount() << '\n';
}

// A material is saved as soon as it is made. What the user has to know comes through the hub, too.
static void saveMaterial()
{
    QObject::connect(IBaseSignal::getInstance(), &IBaseSignal::signal_showMessageType,
                     [](int, const QString& text) { out << "  message: " << text << '\n'; });

    QDir().mkpath("project");
    GlobalHelper::setProjectTempIODir("project");
    auto* const materials = DataManager::MaterialLibraryManager::getInstance();
    materials->initProjectMaterial();

    auto conductivity = QSharedPointer<DataModel::MaterialPropertyData>::create();
    conductivity->label = "electric conductivity";
    conductivity->kind = 3;
    conductivity->components = {5.8e7, 0, 0, 0, 5.8e7, 0, 0, 0, 5.8e7};
    conductivity->remark = "unit S/m";
    if (!materials->hasSameName("My copper", BaseModule::ProjectLib)) {
        materials->createProjectMat("我的铜", "My copper", conductivity, {}, {}, {}, {});
    }
    out << "  " << materials->getMatDesByID(1) << '\n';
    materials->deleteProjectMat(42);
}

// Eleven means describe a mesh to the model, which rates it from 0 to 1.
static void scoreMesh(const QString& mesh, const char* model)
{
    DataManager::MeshQualityReport report;
    if (!report.measure(mesh)) {
        out << "  " << report.problemText() << '\n';
        return;
    }
    const auto shape = report.summary(DataManager::MeshQualityReport::Metric::Shape);
    out << "  tetrahedra: " << report.elementCount() << ", worst shape " << shape.minimum << '\n';

    try {
        auto* const predictor = DataManager::MeshQualityPredict::getinstance();
        predictor->loadModel(model, DataManager::QualityModelCard::inputName,
                             DataManager::QualityModelCard::outputName);
        predictor->setFigureParameter(DataManager::MeshQualityReport::metricCount);
        auto features = report.features();
        out << "  score: " << predictor->inferFigure(features.data()) << '\n';
    } catch (const std::exception& error) {
        out << "  no score: " << error.what() << '\n';
    }
}

int main(int argc, char** argv)
{
    const QCoreApplication application(argc, argv);
    out << "selection\n";
    select();
    out << "material\n";
    saveMaterial();
    if (argc == 3) {
        out << "mesh\n";
        scoreMesh(application.arguments().at(1), argv[2]);
    }
    return 0;
}
