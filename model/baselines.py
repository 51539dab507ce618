# SPDX-FileCopyrightText: 2026 DataManager contributors
# SPDX-License-Identifier: BSD-3-Clause
"""What the network has to beat; each is fitted to the training families and asked about the unseen ones."""
import numpy as np
from sklearn.ensemble import HistGradientBoostingRegressor
from sklearn.isotonic import IsotonicRegression
from sklearn.linear_model import LinearRegression

from tetrahedron_metrics import FEATURES
from transform import BETTER_WHEN_HIGH, USED, logarithms


def single_features(train, test, labels):
    """Each feature alone, turned into a score by the best monotone curve."""
    for index, sign in zip(USED, BETTER_WHEN_HIGH):
        curve = IsotonicRegression(increasing=sign > 0, out_of_bounds="clip").fit(train[:, index], labels)
        yield f"{FEATURES[index]} alone", curve.predict(test[:, index]), sign * test[:, index]


def linear_model(train, test, labels):
    """Linear in the logarithms of the features, fitted to the logarithm of the odds."""
    fitted = LinearRegression().fit(logarithms(train), np.log(labels / (1 - labels)))
    score = 1 / (1 + np.exp(-fitted.predict(logarithms(test))))
    return "linear model", score, score


def boosted_trees(train, test, labels):
    trees = HistGradientBoostingRegressor(max_iter=400, random_state=1).fit(logarithms(train), labels)
    score = trees.predict(logarithms(test))
    return "gradient-boosted trees", score, score


def scaled_jacobian_rule(smallest_train, smallest_test, labels):
    """Passes a mesh whose worst scaled Jacobian is at least 0.2; each verdict scores its training mean."""
    good, passed = smallest_train >= 0.2, smallest_test >= 0.2
    score = np.where(passed, labels[good].mean(), labels[~good].mean())
    return "rule: every scaled Jacobian >= 0.2", score, passed * 1.0


def all_baselines(table, train, test):
    features, labels = table.features, table.accuracy[train]
    yield linear_model(features[train], features[test], labels)
    yield boosted_trees(features[train], features[test], labels)
    yield scaled_jacobian_rule(table.minScaledJacobian[train], table.minScaledJacobian[test], labels)
    yield from single_features(features[train], features[test], labels)
