# SPDX-FileCopyrightText: 2026 DataManager contributors
# SPDX-License-Identifier: BSD-3-Clause
"""Which geometry families are kept for the final test: those of families/fitted.py.

They were made after the meaning of the score, the shape of the model and its training were settled on the others.
"""

TEST_FAMILIES = ["spool", "stepped_shaft", "gusset", "dovetail", "bowl", "louvre", "hook", "windowed_ball", "pipe_tee",
                 "star_prism"]
FOLDS = 5  # by family, over the others: every choice of shape and weights is made on these
