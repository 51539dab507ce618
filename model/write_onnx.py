# SPDX-FileCopyrightText: 2026 DataManager contributors
# SPDX-License-Identifier: BSD-3-Clause
"""Writes the network and everything round it as one ONNX graph: eleven raw features in, the score out."""
import json

import numpy as np
import onnx
from onnx import TensorProto, helper, numpy_helper

from tetrahedron_metrics import FEATURES
from transform import TINY, USED

INPUT, OUTPUT = "onnx::Gemm_0", "19"
FALL = 4.0  # the score falls by exp(-4 d) at a distance d, in logarithms summed over features, outside the range

# Nodes as (operation, inputs, output, attributes); names on the left of "=" in the comments are what they hold.
NODES = [
    ("Gather", ["features", "used"], "chosen", {"axis": 1}),
    ("Max", ["chosen", "tiny"], "positive", {}),
    ("Log", ["positive"], "logarithms", {}),
    ("Max", ["logarithms", "lowest"], "raised", {}),
    ("Min", ["raised", "highest"], "inside", {}),
    # How far outside the training range, summed over the features, and the factor that follows from it.
    ("Sub", ["logarithms", "inside"], "excess", {}),
    ("Abs", ["excess"], "distance", {}),
    ("MatMul", ["distance", "fall"], "fallen", {}),
    ("Exp", ["fallen"], "factor", {}),
    # The network; the first layer's weights carry the standardisation.
    ("Gemm", ["inside", "weights1", "biases1"], "sum1", {}),
    ("Tanh", ["sum1"], "hidden1", {}),
    ("Gemm", ["hidden1", "weights2", "biases2"], "sum2", {}),
    ("Tanh", ["sum2"], "hidden2", {}),
    ("Gemm", ["inside", "direct", "biases3"], "straight", {}),
    ("Gemm", ["hidden2", "weights3", "straight"], "sum3", {}),
    ("Sigmoid", ["sum3"], "network", {}),
    ("Mul", ["network", "factor"], "scored", {}),
    # No mesh (all features zero) scores 0.
    ("Abs", ["features"], "sizes", {}),
    ("ReduceMax", ["sizes"], "largest", {"axes": [1], "keepdims": 1}),
    ("Greater", ["largest", "zero"], "someMesh", {}),
    ("Where", ["someMesh", "scored", "zero"], "known", {}),
    # A NaN anywhere in the features comes out, whatever the runtime's Max and Min make of it.
    ("IsNaN", ["features"], "bad", {}),
    ("Cast", ["bad"], "badOnes", {"to": TensorProto.FLOAT}),
    ("ReduceMax", ["badOnes"], "worst", {"axes": [1], "keepdims": 1}),
    ("Greater", ["worst", "zero"], "anyBad", {}),
    ("Where", ["anyBad", "nan", "known"], OUTPUT, {}),
]


def constants(weights, mean, deviation, lowest, highest):
    """Folds the standardisation (x - mean) / deviation into the first layer and the direct connection."""
    w1, b1, w2, b2, w3, b3, direct = weights
    scaled1, scaled_direct = w1 / deviation[:, None], direct / deviation[:, None]
    return {
        "tiny": [[TINY]], "zero": [[0.0]], "nan": [[np.nan]], "lowest": lowest[None], "highest": highest[None],
        "fall": np.full((len(lowest), 1), -FALL),
        "weights1": scaled1, "biases1": (b1 - mean @ scaled1)[None], "weights2": w2, "biases2": b2[None],
        "weights3": w3, "direct": scaled_direct, "biases3": (b3 - mean @ scaled_direct)[None],
    }


def graph(values):
    nodes = [helper.make_node(kind, [INPUT if name == "features" else name for name in inputs], [output], name=output,
                              **attributes) for kind, inputs, output, attributes in NODES]
    tensors = [numpy_helper.from_array(np.asarray(value, dtype=np.float32), name) for name, value in values.items()]
    tensors.append(numpy_helper.from_array(np.array(USED, dtype=np.int64), "used"))
    return helper.make_graph(nodes, "mesh-accuracy", [helper.make_tensor_value_info(INPUT, TensorProto.FLOAT, [1, 11])],
                             [helper.make_tensor_value_info(OUTPUT, TensorProto.FLOAT, [1, 1])], tensors)


def training_ranges(lowest, highest):
    ranges = {name: None for name in FEATURES}
    ranges.update({FEATURES[i]: [float(f"{np.exp(a):.6g}"), float(f"{np.exp(b):.6g}")]
                   for i, a, b in zip(USED, lowest, highest)})
    return ranges


def write(path, values, metadata):
    model = helper.make_model(graph(values), producer_name="DataManager", opset_imports=[helper.make_opsetid("", 13)])
    model.ir_version = 7
    helper.set_model_props(model, {key: value if isinstance(value, str) else json.dumps(value)
                                   for key, value in metadata.items()})
    onnx.checker.check_model(model)
    onnx.save(model, str(path))
