"""The discretised wall: its linear system and the elimination that solves it."""

STIFF = -1e11


class Singular(Exception):
    """The system has no solution."""


def anchor_node(depth, step):
    """Nearest node; a depth half way goes to the deeper one."""
    return 1 + int(depth / step + 0.5)


class System:
    """Matrix and vectors of one run; 1-based, all zero when the run starts."""

    def __init__(self, n_nodi, grown):
        size = 2 * n_nodi + (2 if grown else 0)
        self.A = [[0.0] * (size + 1) for _ in range(size + 1)]
        self.B = [0.0] * (size + 1)
        self.x = [0.0] * (size + 1)

    def clear(self, n_nodi):
        """Zero the ungrown part alone: the grown rows and columns keep what they hold."""
        last = 2 * n_nodi
        for r in range(1, last + 1):
            self.A[r][1:last + 1] = [0.0] * last
            self.B[r] = 0.0
            self.x[r] = 0.0


def assemble(s, n, h, E, k, p, H, M):
    """Assign the cells of the n-node wall; a cell is never added to."""
    A, B = s.A, s.B
    N = n - 1
    hh = h * h
    for j in range(1, N + 1):
        A[j][j] = -1.0
        A[j][j + 1] = 1.0
        A[j][n + j] = k[j] * h / 2
        A[j][n + j + 1] = k[j + 1] * h / 2
        B[j] = -p[j] * h / 2 - p[j + 1] * h / 2
        if j == 1:
            B[j] = B[j] + H
    r = N + 1
    A[r][1] = -h
    A[r][n + 1] = -E[1] / hh + (k[1] * h / 2) * h
    A[r][n + 2] = 2 * E[1] / hh
    A[r][n + 3] = -E[1] / hh
    B[r] = -(p[1] * h / 2) * h - M + H * h
    for j in range(2, N):
        r = N + j
        A[r][j] = -h
        A[r][n + j - 1] = E[j] / hh
        A[r][n + j] = -3 * E[j] / hh + (k[j] * h / 2) * h
        A[r][n + j + 1] = 3 * E[j] / hh
        A[r][n + j + 2] = -E[j] / hh
        B[r] = -(p[j] * h / 2) * h
    r = N + N
    A[r][N] = -h
    A[r][n + N - 1] = E[N] / hh
    A[r][n + N] = -2 * E[N] / hh + (k[N] * h / 2) * h
    A[r][n + N + 1] = E[N] / hh
    B[r] = -(p[N] * h / 2) * h
    forces = 0.0
    moments = 0.0
    for i in range(1, n + 1):
        w = 1 if i == 1 or i == n else 2
        A[2 * N + 1][n + i] = k[i] * w * h / 2
        A[2 * N + 2][n + i] = (k[i] * w * h / 2) * (-(i - 1) * h)
        forces = forces + -p[i] * w * h / 2
        moments = moments + (p[i] * w * h / 2) * (i - 1) * h
    B[2 * N + 1] = forces - H
    B[2 * N + 2] = moments - M


def risolvi_sistema(n, s):
    """Gauss-Jordan elimination with full pivoting; A becomes its inverse."""
    A = s.A
    B = list(s.B)
    counter = [0] * (n + 1)
    recorded = []
    pivot_row = pivot_col = 0
    for _ in range(n):
        big = 0.0
        for j in range(1, n + 1):
            if counter[j] == 1:
                continue
            row = A[j]
            for k in range(1, n + 1):
                if counter[k] == 0:
                    size = abs(row[k])
                    if size >= big:
                        big = size
                        pivot_row = j
                        pivot_col = k
                elif counter[k] > 1:
                    raise Singular
        c = pivot_col
        if c == 0:
            raise Singular  # nothing but values that are no numbers
        counter[c] += 1
        if pivot_row != c:
            A[pivot_row], A[c] = A[c], A[pivot_row]
            B[pivot_row], B[c] = B[c], B[pivot_row]
        recorded.append((pivot_row, c))
        row_c = A[c]
        if row_c[c] == 0:
            raise Singular
        inv = 1 / row_c[c]
        row_c[c] = 1.0
        row_c = A[c] = [cell * inv for cell in row_c]
        b_c = B[c] = B[c] * inv
        for r in range(1, n + 1):
            if r == c:
                continue
            row = A[r]
            d = row[c]
            row[c] = 0.0
            A[r] = [cell - d * over for cell, over in zip(row, row_c)]
            B[r] = B[r] - d * b_c
    for one, other in reversed(recorded):
        if one != other:
            for row in A[1:]:
                row[one], row[other] = row[other], row[one]
    for i in range(1, n + 1):
        s.x[i] = B[i]
