# SPDX-FileCopyrightText: 2026 DataManager contributors
# SPDX-License-Identifier: BSD-3-Clause
"""A network of two hidden layers whose score can only fall when a feature gets worse, fitted with L-BFGS.

Inputs are oriented so that higher is better; then non-negative weights (squares of the free parameters) and rising
activations make the score rise with every input: monotone by construction, not by luck of the data.
"""
import numpy as np
from scipy.optimize import minimize


class Network:
    def __init__(self, inputs, hidden, generator, monotone=True):
        self.shapes = [(inputs, hidden), (hidden,), (hidden, hidden), (hidden,), (hidden, 1), (1,), (inputs, 1)]
        self.monotone = monotone
        parts = []
        for shape in self.shapes:
            spread = 1 / np.sqrt(shape[0]) if len(shape) == 2 else 1.0
            part = generator.normal(size=shape) * spread
            if len(shape) == 2 and monotone:
                part = np.sqrt(np.abs(part) * 0.5)
            parts.append(part.ravel())
        self.raw = np.concatenate(parts)

    def arrays(self, raw):
        """The weights and biases that the free parameters stand for, and the derivative of each by its parameter."""
        values, slopes, start = [], [], 0
        for shape in self.shapes:
            part = raw[start:start + int(np.prod(shape))].reshape(shape)
            start += part.size
            squared = self.monotone and len(shape) == 2
            values.append(part ** 2 if squared else part)
            slopes.append(2 * part if squared else np.ones_like(part))
        return values, slopes

    def weights(self):
        return self.arrays(self.raw)[0]

    def predict(self, x):
        return self.forward(x, self.weights())[-1][:, 0]

    @staticmethod
    def forward(x, w):
        first = np.tanh(x @ w[0] + w[1])
        second = np.tanh(first @ w[2] + w[3])
        return first, second, 1 / (1 + np.exp(-(second @ w[4] + w[5] + x @ w[6])))

    def loss(self, raw, x, y, importance, relative, decay):
        w, slopes = self.arrays(raw)
        first, second, score = self.forward(x, w)
        error, ratio = score - y, np.log(score / y)
        loss = (importance * (error ** 2 + relative * ratio ** 2)).sum()
        by_output = importance * (2 * error * score * (1 - score) + 2 * relative * ratio * (1 - score))
        by_second = by_output @ w[4].T * (1 - second ** 2)
        by_first = by_second @ w[2].T * (1 - first ** 2)
        gradients = [x.T @ by_first, by_first.sum(0), first.T @ by_second, by_second.sum(0),
                     second.T @ by_output, by_output.sum(0), x.T @ by_output]
        flat = np.concatenate([(g * s).ravel() for g, s in zip(gradients, slopes)])
        return loss + decay * (raw ** 2).sum(), flat + 2 * decay * raw

    def fit(self, x, y, importance, relative=0.002, decay=1e-7, steps=2000):
        weights = (importance / importance.sum())[:, None]
        result = minimize(self.loss, self.raw, args=(x, y[:, None], weights, relative, decay), jac=True,
                          method="L-BFGS-B", options={"maxiter": steps, "maxfun": 2 * steps, "maxcor": 20})
        self.raw = result.x
        return result.fun
