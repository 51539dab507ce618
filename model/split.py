# SPDX-FileCopyrightText: 2026 DataManager contributors
# SPDX-License-Identifier: BSD-3-Clause
"""Which geometry families are kept for the final test, chosen before any training: one or two of each group."""

TEST_FAMILIES = ["polygon_prism", "joined_materials", "cross_drilled", "cheese", "open_tray", "corrugated_sheet",
                 "slit_block", "helix", "swept_aerofoil", "bone"]
FOLDS = 5  # by family, over the others: every choice of shape and weights is made on these
