# SPDX-FileCopyrightText: 2026 DataManager contributors
# SPDX-License-Identifier: BSD-3-Clause
"""A network of two hidden layers and a direct connection, fitted with L-BFGS; and the loss that it is fitted to."""
import numpy as np
from scipy.optimize import minimize

BEND = 0.02        # errors of the score count by their square below this, by their size above
RELATIVE = 0.0003  # share of the squared error of the score's logarithm: keeps small scores in order
RISE = 1000.0      # share of the squared rises of the score along a jitter sequence
ALLOWED = 0.005    # at most so far may the score rise with the measured accuracy: slivers can profit from being moved


class Network:
    def __init__(self, inputs, hidden, generator):
        self.shapes = [(inputs, hidden), (hidden,), (hidden, hidden), (hidden,), (hidden, 1), (1,), (inputs, 1)]
        spreads = [1 / np.sqrt(shape[0]) if len(shape) == 2 else 1.0 for shape in self.shapes]
        self.flat = np.concatenate([(generator.normal(size=shape) * spread).ravel()
                                    for shape, spread in zip(self.shapes, spreads)])

    def weights(self, flat=None):
        flat, parts, start = self.flat if flat is None else flat, [], 0
        for shape in self.shapes:
            parts.append(flat[start:start + int(np.prod(shape))].reshape(shape))
            start += parts[-1].size
        return parts

    @staticmethod
    def forward(x, w):
        first = np.tanh(x @ w[0] + w[1])
        second = np.tanh(first @ w[2] + w[3])
        return first, second, 1 / (1 + np.exp(-(second @ w[4] + w[5] + x @ w[6])))

    def predict(self, x):
        return self.forward(x, self.weights())[-1][:, 0]

    def fit(self, x, y, importance, sequences=(0, 1), decay=1e-5, steps=2000):
        goal = Loss(x, y, importance, sequences, decay)
        result = minimize(lambda flat: goal.value_and_gradient(self, flat), self.flat, jac=True, method="L-BFGS-B",
                          options={"maxiter": steps, "maxfun": 2 * steps, "maxcor": 20})
        self.flat = result.x
        return result.fun


class Loss:
    def __init__(self, x, y, importance, sequences, decay):
        """sequences: how many of the last rows, and the length of each jitter sequence among them; (0, 1) for none."""
        self.x, self.y, self.decay = x, y[:, None], decay
        self.importance = (importance / importance.sum())[:, None]
        self.last, self.length = sequences
        measured = y[len(y) - self.last:].reshape(-1, self.length)
        self.allowed = np.clip(np.diff(measured, axis=1), 0, ALLOWED)

    def of_scores(self, score):
        error, ratio = score - self.y, np.log(score / self.y)
        root = np.sqrt(1 + (error / BEND) ** 2)
        value = (self.importance * (2 * BEND ** 2 * (root - 1) + RELATIVE * ratio ** 2)).sum()
        slope = self.importance * (2 * error / root + 2 * RELATIVE * ratio / score)
        return value, slope

    def of_rises(self, score):
        slope = np.zeros_like(score)
        if not self.last:
            return 0.0, slope
        paths = score[-self.last:].reshape(-1, self.length)
        rises = np.maximum(np.diff(paths, axis=1) - self.allowed, 0)
        by_path = np.zeros_like(paths)
        by_path[:, 1:] += 2 * rises
        by_path[:, :-1] -= 2 * rises
        slope[-self.last:] = RISE / self.last * by_path.reshape(-1, 1)
        return RISE / self.last * (rises ** 2).sum(), slope

    def value_and_gradient(self, network, flat):
        w = network.weights(flat)
        first, second, score = network.forward(self.x, w)
        (value, slope), (rising, rising_slope) = self.of_scores(score), self.of_rises(score)
        by_output = (slope + rising_slope) * score * (1 - score)
        by_second = by_output @ w[4].T * (1 - second ** 2)
        by_first = by_second @ w[2].T * (1 - first ** 2)
        parts = [self.x.T @ by_first, by_first.sum(0), first.T @ by_second, by_second.sum(0),
                 second.T @ by_output, by_output.sum(0), self.x.T @ by_output]
        gradient = np.concatenate([part.ravel() for part in parts]) + 2 * self.decay * flat
        return value + rising + self.decay * (flat ** 2).sum(), gradient
