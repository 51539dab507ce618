# SPDX-FileCopyrightText: 2026 DataManager contributors
# SPDX-License-Identifier: BSD-3-Clause
"""Writes the network and everything round it as one ONNX graph: eleven raw features in, the score out."""
import json

import numpy as np
import onnx
from onnx import TensorProto, helper, numpy_helper
from scipy.linalg import block_diag

from tetrahedron_metrics import FEATURES
from transform import ROBUST, USED

INPUT, OUTPUT = "onnx::Gemm_0", "19"
# The score falls by exp(-4 d) at a distance d, in logarithms, outside the range of a feature; by less where one nearly
# flat element of thousands takes the mean out of it.
FALL, FALL_OF_OTHERS = 4.0, 0.05

ANY_SIZE = 1000.0  # bound on the logarithms of volume and Jacobian, which no float reaches: any size is inside

# Nodes as (operation, inputs, output). Few of them: the runtime's cost is mostly per node.
NODES = [
    ("Log", ["features"], "logarithms"),
    ("Max", ["logarithms", "lowest"], "raised"),
    ("Min", ["raised", "highest"], "inside"),
    # How far outside the training range, summed over the features, and the factor that follows from it. All zeros (no
    # mesh) and infinities are infinitely far, so they score 0. A NaN stays one here, whatever Max and Min make of it.
    ("Sub", ["logarithms", "inside"], "excess"),
    ("Abs", ["excess"], "distance"),
    ("MatMul", ["distance", "fall"], "fallen"),
    ("Exp", ["fallen"], "factor"),
    # The network; the weights of its first layer carry the standardisation.
    ("Gemm", ["inside", "weights1", "biases1"], "sum1"),
    ("Tanh", ["sum1"], "hidden1"),
    ("Gemm", ["hidden1", "weights2", "biases2"], "sum2"),
    ("Tanh", ["sum2"], "hidden2"),
    ("Gemm", ["inside", "direct", "biases3"], "straight"),
    ("Gemm", ["hidden2", "weights3", "straight"], "sum3"),
    ("Sigmoid", ["sum3"], "network"),
    ("Mul", ["network", "factor"], OUTPUT),
]


def of_all_features(values, others):
    """Rows for the used features put among the eleven, and others in the rows of the rest."""
    rows = np.full((len(FEATURES), values.shape[1]), others)
    rows[USED] = values
    return rows


def constants(networks, mean, mixing, lowest, highest):
    """One network out of several: side by side in the hidden layers, their sums averaged. Each was fitted to
    (x - mean) @ mixing, which goes into the first layer and the direct connection here."""
    parts = list(zip(*(network.weights() for network in networks)))
    first, direct = mixing @ np.hstack(parts[0]), mixing @ np.mean(parts[6], axis=0)
    return {
        "lowest": of_all_features(lowest[:, None], -ANY_SIZE).T,
        "highest": of_all_features(highest[:, None], ANY_SIZE).T,
        "fall": np.array([[-FALL if name in ROBUST else -FALL_OF_OTHERS] for name in FEATURES]),
        "weights1": of_all_features(first, 0.0), "biases1": (np.hstack(parts[1]) - mean @ first)[None],
        "weights2": block_diag(*parts[2]), "biases2": np.hstack(parts[3])[None],
        "weights3": np.vstack(parts[4]) / len(networks), "direct": of_all_features(direct, 0.0),
        "biases3": (np.mean(parts[5], axis=0) - mean @ direct)[None],
    }


def graph(values):
    nodes = [helper.make_node(kind, [INPUT if name == "features" else name for name in inputs], [output], name=output)
             for kind, inputs, output in NODES]
    tensors = [numpy_helper.from_array(np.asarray(value, dtype=np.float32), name) for name, value in values.items()]
    return helper.make_graph(nodes, "mesh-accuracy", [helper.make_tensor_value_info(INPUT, TensorProto.FLOAT, [1, 11])],
                             [helper.make_tensor_value_info(OUTPUT, TensorProto.FLOAT, [1, 1])], tensors)


def training_ranges(values):
    """The range of each feature in the training data, None for those that any size may have."""
    pairs = zip(FEATURES, values["lowest"][0], values["highest"][0])
    return {name: None if high == ANY_SIZE else [float(f"{np.exp(low):.6g}"), float(f"{np.exp(high):.6g}")]
            for name, low, high in pairs}


def write(path, values, metadata):
    model = helper.make_model(graph(values), producer_name="DataManager", opset_imports=[helper.make_opsetid("", 13)])
    model.ir_version = 7
    helper.set_model_props(model, {key: value if isinstance(value, str) else json.dumps(value)
                                   for key, value in metadata.items()})
    onnx.checker.check_model(model)
    onnx.save(model, str(path))
