// SPDX-FileCopyrightText: 2026 DataManager contributors
// SPDX-License-Identifier: BSD-3-Clause

#pragma once

#include <datamanager/datamanager_export.h>

#include <QString>
#include <QVector>

#include <deque>
#include <vector>

struct OrtApi;
namespace Ort {
struct Session;
}

namespace DataManager {

/// Measures the tetrahedral mesh that the mesher last wrote, scores it with a trained model, and keeps the last ten
/// scores.
///
/// The table operations below are pure functions of their arguments. They never read out of range: a missing component
/// of a point counts as 0, and where a value is missing in a second argument, the result is NaN.
///
/// Points and vectors are lists of x, y, z. In element tables the first index is the element:
/// - element nodes: the four corner points P0 to P3;
/// - edge vectors: L0 = P1 - P0, L1 = P2 - P1, L2 = P0 - P2, L3 = P3 - P0, L4 = P3 - P1, L5 = P3 - P2;
/// - edge lengths: of the pairs P0P1, P0P2, P0P3, P1P2, P1P3, P2P3, an order of its own.
/// Lengths are in the unit of the mesh file. Flat, inverted and coincident elements give infinities, negative values
/// and NaN, as IEEE arithmetic has it; nothing is clamped.
///
/// All calls come from one thread. Errors of the model runtime are thrown as Ort::Exception; nothing else is thrown.
class DATAMANAGER_EXPORT MeshQualityPredict
{
public:
    /// The predictor of the process, created by the first call and never destroyed.
    static MeshQualityPredict* getinstance();

    /// No names, a history of ten zeros. The loaded model is shared by all instances, the node names are not.
    MeshQualityPredict();
    /// A copy of names and history; the loaded model is shared anyway.
    MeshQualityPredict(const MeshQualityPredict&) = default;
    /// Takes names and history over.
    MeshQualityPredict& operator=(const MeshQualityPredict&) = default;
    ~MeshQualityPredict() = default;

    // --- Prediction

    /// Scores "../temp/mesh.msh" beside the program with the model "../mesher/mesh.onnx" and appends the score to the
    /// history, unless the first ten features have the direction of those scored last (cosine above 0.9999999).
    /// The model is loaded once; after a failed load the next call tries again. Without a mesh file zeros are scored.
    /// Throws Ort::Exception; the history is then as it was.
    void predict();

    /// Loads a model for all instances, in place of an earlier one, and remembers where its node names stand: both
    /// texts must outlive the use of this object. Throws Ort::Exception and then keeps the earlier model. `modelPath`
    /// is in the encoding of file names.
    void loadModel(const char* modelPath, const char* inputName, const char* outputName);

    /// Scores the floats at `input`, as many as setFigureParameter() said. The score is clamped to [0, 1]; NaN stays.
    /// When the number was never set, a line on standard output says so first.
    /// Throws Ort::Exception, also when there is no model, no input, or an output that is not at least one float.
    float inferFigure(void* input);

    /// The last ten scores, oldest first; 0 stands for a score not yet given.
    std::vector<float> getOutput();

    /// Sets the number of input values of the model.
    void setFigureParameter(int n);

    /// Cosine of the angle between two vectors of ten floats; NaN when one of them is zero.
    double cosDistance(float* a, float* b);

    /// Euclidean norm of a vector of any size.
    double getMold(const std::vector<double>& vector);

    /// Fills eleven floats with the means, over all tetrahedra of "../temp/mesh.msh" beside the program, of Volume,
    /// EdgeRatio, AspectRatio, AspectGamma, Condition, Jacobian, RadiusRatio, RelativeSizeSquared, ScaledJacobian,
    /// Shape and ShapeAndSize. Sums run in double precision in element order. All are NaN when there is no tetrahedron.
    /// Without that file `input` is left as it was.
    /// The file is streamed: nothing is allocated per element but its corner numbers, its volume and its shape.
    void getInput(float* input);

    // --- Mesh file (MSH 2 ASCII)

    /// Appends the nodes and the tetrahedra of a mesh file to two tables: x, y, z a node; four node numbers, from 1, a
    /// tetrahedron. A node's number is its place among the node lines; the number in its first column is not read.
    /// Columns are separated by exactly one blank, and elements have two tags. Text that is no number is 0.
    /// Skipped: elements of other types; node lines with fewer than four columns (the nodes after them move up by one);
    /// tetrahedra with fewer than nine columns; tetrahedra naming a node that is not in the node table in the end.
    /// What is no readable regular file has no lines. Nothing is reported.
    void get_Nodes_Elements(QString path, QVector<QVector<double>>& nodes, QVector<QVector<int>>& elements);

    /// The corner points of every element. An element that does not name four existing nodes has an empty entry.
    QVector<QVector<QVector<double>>> get_ElementsNodes(QVector<QVector<double>> nodes, QVector<QVector<int>> elements);

    // --- Vectors

    /// k v
    QVector<double> ab(double k, QVector<double> v);
    /// Dot product.
    double ab(QVector<double> a, QVector<double> b);
    /// Cross product.
    QVector<double> axb(QVector<double> a, QVector<double> b);
    /// a - b
    QVector<double> minus(QVector<double> a, QVector<double> b);
    /// a + b
    QVector<double> plus(QVector<double> a, QVector<double> b);
    /// From point a to point b: b - a.
    QVector<double> calculate_vector(QVector<double> a, QVector<double> b);
    /// Length of the first three components.
    double calculate_vectorLength(QVector<double> v);

    // --- Element geometry

    /// Edge vectors from element nodes. An element without exactly four nodes has an empty entry.
    QVector<QVector<QVector<double>>> get_vectorLs(QVector<QVector<QVector<double>>> elementsNodes);
    /// The distances of all node pairs (i, j), i < j, from element nodes; k(k - 1)/2 for an element of k nodes.
    QVector<QVector<double>> get_ElementsLinesLength(QVector<QVector<QVector<double>>> elementsNodes);
    /// Appends per element: face area, longest and shortest edge, circumradius figure, inradius, signed volume
    /// (positive when P3 lies on the side to which (P1 - P0) x (P2 - P0) points). The circumradius figure is |L3|^2 |L2
    /// x L0| / (12 V), not the circumradius in general. An element without exactly six edge vectors, or without
    /// lengths, is left out of all six lists. Element i takes the volume for both radii from place i of `Vs`, so they
    /// belong to another element after one that was left out, and are NaN where there is no place i: hand in tetrahedra
    /// and empty lists only.
    void get_As_Lmaxs_Lmins_Rs_rs_Vs(QVector<QVector<QVector<double>>> edgeVectors,
                                     QVector<QVector<double>> edgeLengths, QVector<double>& As, QVector<double>& Lmaxs,
                                     QVector<double>& Lmins, QVector<double>& Rs, QVector<double>& rs,
                                     QVector<double>& Vs);

    // --- Metrics, one value for each entry of the first argument. They are named after the Verdict metrics, but
    // Condition, RadiusRatio and RelativeSizeSquared are defined otherwise, and none is clamped.

    /// Lmax / (2 sqrt(6) r)
    QVector<double> get_AspectRatio(QVector<double> Lmaxs, QVector<double> rs);
    /// sqrt(2) s^3 / (12 V), s the root mean square of the edge lengths.
    QVector<double> get_AspectGamma(QVector<QVector<QVector<double>>> edgeVectors, QVector<double> Vs);
    /// Condition number, third column not divided by sqrt(6): sqrt(52/27) for the regular tetrahedron. `As` is not
    /// used.
    QVector<double> get_Condition(QVector<QVector<QVector<double>>> edgeVectors, QVector<double> As);
    /// Lmax / Lmin
    QVector<double> get_EdgeRatio(QVector<double> Lmaxs, QVector<double> Lmins);
    /// (L2 x L0) . L3, six times the signed volume.
    QVector<double> get_Jacobian(QVector<QVector<QVector<double>>> edgeVectors);
    /// R / (3 r), with the circumradius figure as R.
    QVector<double> get_RadiusRatio(QVector<double> Rs, QVector<double> rs);
    /// min(x, 1/x) of x = V / mean V; not squared.
    QVector<double> get_RelativeSizeSquared(QVector<double> Vs);
    /// sqrt(2) J / the largest of J and the four products of the edge lengths at a corner.
    QVector<double> get_ScaledJacobian(QVector<QVector<QVector<double>>> edgeVectors, QVector<double> Js);
    /// 3 (sqrt(2) J)^(2/3) / (1.5 (L0.L0 + L2.L2 + L3.L3) - (-L0.L2 + L3.L0 - L2.L3)), J rounded to single precision.
    QVector<double> get_Shape(QVector<QVector<QVector<double>>> edgeVectors, QVector<double> Js);
    /// Shape times relative size.
    QVector<double> get_ShapeAndSize(QVector<double> shapes, QVector<double> relativeSizes);

private:
    const char* m_inputName = nullptr;
    const char* m_outputName = nullptr;
    bool m_isDimensionSet = false;
    int m_inputSize = 0;
    std::vector<float> m_output;
    std::deque<float> m_history;
    float m_lastInput[10] = {};

    static const OrtApi* s_ortApi;
    static Ort::Session* s_session;
    static MeshQualityPredict* m_instance;
};

} // namespace DataManager
