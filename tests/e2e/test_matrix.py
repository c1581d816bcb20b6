# SPDX-License-Identifier: GPL-3.0-or-later
"""The fidelity matrix for clients that start quickly."""

from desktop import fresh, main
from matrix import tests
from matrix_rows import ROWS

if __name__ == "__main__":
    main([fresh(test) for test in tests([name for name, row in ROWS.items() if not row.heavy])])
