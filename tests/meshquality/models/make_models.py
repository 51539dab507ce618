#!/usr/bin/env python3
# SPDX-FileCopyrightText: 2026 DataManager contributors
# SPDX-License-Identifier: BSD-3-Clause
"""Makes the small models of this folder, which test what the predictor does with a model. Needs python3-onnx."""

import pathlib

import numpy
from onnx import TensorProto, helper, numpy_helper, save

HERE = pathlib.Path(__file__).resolve().parent
INPUT, OUTPUT = "onnx::Gemm_0", "19"


def write(name, nodes, initializers, input_shape=(1, 11), input_type=TensorProto.FLOAT, output_shape=(1, 1),
          output_type=TensorProto.FLOAT, input_name=INPUT, output_name=OUTPUT):
    graph = helper.make_graph(
        nodes, name,
        [helper.make_tensor_value_info(input_name, input_type, input_shape)],
        [helper.make_tensor_value_info(output_name, output_type, output_shape)],
        [numpy_helper.from_array(array, key) for key, array in initializers.items()])
    model = helper.make_model(graph, opset_imports=[helper.make_opsetid("", 13)], producer_name="make_models.py")
    model.ir_version = 7
    save(model, str(HERE / f"{name}.onnx"))


def constant(name, array, output_type=TensorProto.FLOAT):
    write(name, [helper.make_node("Identity", ["value"], [OUTPUT])], {"value": array},
          output_shape=array.shape, output_type=output_type)


def weighted_sum(name, weights, dtype=numpy.float32, **rest):
    column = numpy.asarray(weights, dtype=dtype).reshape(-1, 1)
    nodes = [helper.make_node("MatMul", [rest.get("input_name", INPUT), "weights"], [rest.get("output_name", OUTPUT)])]
    write(name, nodes, {"weights": column}, **rest)


constant("above-one", numpy.array([[1.7]], dtype=numpy.float32))
constant("below-zero", numpy.array([[-0.2]], dtype=numpy.float32))
constant("not-a-number", numpy.array([[numpy.nan]], dtype=numpy.float32))
constant("integer-output", numpy.array([[1]], dtype=numpy.int64), TensorProto.INT64)
constant("double-output", numpy.array([[0.5]], dtype=numpy.float64), TensorProto.DOUBLE)
constant("empty-output", numpy.zeros((0,), dtype=numpy.float32))
weighted_sum("volume", [1.0] + [0.0] * 10)
weighted_sum("last-feature", [0.0] * 10 + [1.0])
weighted_sum("five-inputs", [0.1] * 5, input_shape=(1, 5))
weighted_sum("double-input", [0.1] * 11, numpy.float64, input_type=TensorProto.DOUBLE, output_type=TensorProto.DOUBLE)
weighted_sum("rank-one-input", [0.1] * 11, input_shape=(11,), output_shape=(1,))
weighted_sum("other-input-name", [0.1] * 11, input_name="input")
weighted_sum("other-output-name", [0.1] * 11, output_name="output")
weighted_sum("all-wrong", [0.01] * 5, numpy.float64, input_shape=(1, 5), input_type=TensorProto.DOUBLE,
             output_type=TensorProto.DOUBLE, input_name="input", output_name="output")
weighted_sum("any-batch", [0.01] * 11, input_shape=("batch", 11), output_shape=("batch", 1))
weighted_sum("two-rows", [0.01] * 11, input_shape=(2, 11), output_shape=(2, 1))


def several(name, nodes, inputs, outputs):
    """A model of any inputs and outputs, each as (name, shape) or as a value that ONNX describes otherwise."""
    values = [[helper.make_tensor_value_info(value[0], TensorProto.FLOAT, value[1]) if isinstance(value, tuple)
               else value for value in side] for side in (inputs, outputs)]
    model = helper.make_model(helper.make_graph(nodes, name, *values), opset_imports=[helper.make_opsetid("", 13)],
                              producer_name="make_models.py")
    model.ir_version = 7
    save(model, str(HERE / f"{name}.onnx"))


several("two-inputs", [helper.make_node("Add", [INPUT, "more"], [OUTPUT])],
        [(INPUT, (1, 11)), ("more", (1, 11))], [(OUTPUT, (1, 11))])
several("two-outputs", [helper.make_node("Sigmoid", [INPUT], ["first"]), helper.make_node("Tanh", [INPUT], [OUTPUT])],
        [(INPUT, (1, 11))], [("first", (1, 11)), (OUTPUT, (1, 11))])
several("list-output", [helper.make_node("SequenceConstruct", [INPUT], [OUTPUT])], [(INPUT, (1, 11))],
        [helper.make_tensor_sequence_value_info(OUTPUT, TensorProto.FLOAT, None)])
# Empty only when it is run: the features that are above 1e30.
several("empty-when-run", [helper.make_node("Constant", [], ["limit"], value_float=1e30),
                           helper.make_node("Constant", [], ["flat"], value_ints=[-1]),
                           helper.make_node("Greater", [INPUT, "limit"], ["large"]),
                           helper.make_node("Reshape", ["large", "flat"], ["flags"]),
                           helper.make_node("Compress", [INPUT, "flags"], [OUTPUT])],
        [(INPUT, (1, 11))], [(OUTPUT, ("size",))])
several("other-outputs", [helper.make_node("Sigmoid", [INPUT], ["a"]), helper.make_node("Tanh", [INPUT], ["b"])],
        [(INPUT, (1, 11))], [("a", (1, 11)), ("b", (1, 11))])


def fails_when_run():
    """By the volume: 0.5 up to 1000, then not a number, above 2000 more than one, and above 3000 an element that the
    table does not have, which the runtime finds only when the model is run."""
    table = numpy.array([[0.5], [numpy.nan], [1.7]], dtype=numpy.float32)
    nodes = [helper.make_node("Constant", [], ["flat"], value_ints=[-1]),
             helper.make_node("Constant", [], ["first"], value_ints=[0]),
             helper.make_node("Constant", [], ["table"], value=numpy_helper.from_array(table)),
             helper.make_node("Reshape", [INPUT, "flat"], ["features"]),
             helper.make_node("Gather", ["features", "first"], ["volume"])]
    for limit in (1000, 2000, 3000):
        nodes += [helper.make_node("Constant", [], [f"limit{limit}"], value_floats=[float(limit)]),
                  helper.make_node("Greater", ["volume", f"limit{limit}"], [f"is{limit}"]),
                  helper.make_node("Cast", [f"is{limit}"], [f"step{limit}"], to=TensorProto.INT64)]
    nodes += [helper.make_node("Add", ["step1000", "step2000"], ["steps"]),
              helper.make_node("Add", ["steps", "step3000"], ["place"]),
              helper.make_node("Gather", ["table", "place"], [OUTPUT])]
    several("fails-when-run", nodes, [(INPUT, (1, 11))], [(OUTPUT, (1, 1))])


fails_when_run()
