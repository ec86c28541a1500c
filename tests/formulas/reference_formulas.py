"""The definitions that reference.py solves its problems by, in their plainest form, at 100 digits, and its lines."""
import calendar
import math
from datetime import date
from mpmath import diff, log, mp, mpf, polyroots, sign

mp.dps = 100
WORST_CONDITION = 2000


def growth(i, n):
    return (1 + i) ** n


def annuity_pv(i, n, pmt, fv, t):
    return -(pmt * (1 + i * t) * (growth(i, n) - 1) / i + fv) / growth(i, n)


def annuity_fv(i, n, pmt, pv, t):
    return -(pv * growth(i, n) + pmt * (1 + i * t) * (growth(i, n) - 1) / i)


def annuity_pmt(i, n, pv, fv, t):
    return -(pv * growth(i, n) + fv) * i / ((1 + i * t) * (growth(i, n) - 1))


def annuity_n(i, pmt, pv, fv, t):
    due = pmt * (1 + i * t)
    return log((due - fv * i) / (due + pv * i)) / log(1 + i)


def schedule(i, n, pv, m):
    """Principal and interest in the first m payments, one after the other."""
    with mp.workdps(100 + int(n * abs(log(1 + i, 10)))):  # the balance loses as many digits as the loan would gain
        payment = -annuity_pmt(i, n, pv, mpf(0), 0)
        balance, interest = pv, mpf(0)
        for _ in range(int(m)):
            interest += balance * i
            balance = balance * (1 + i) - payment
        return pv - balance, interest


def declining(cost, salvage, life, year, factor):
    kept = 1 - min(mpf(1), factor / life)
    return max(mpf(0), cost * kept ** (year - 1) - max(cost * kept ** year, salvage))


def npv(i, first, *flows):
    return first + sum(flow / (1 + i) ** (k + 1) for k, flow in enumerate(flows))


def months_back(day, months):
    number = day.year * 12 + day.month - 1 - months
    year, month = divmod(number, 12)
    return date(year, month + 1, min(day.day, calendar.monthrange(year, month + 1)[1]))


def coupons(settlement, maturity):
    """The coupons left and the part of a period to the next of them."""
    count = 0
    while months_back(maturity, 6 * count) > settlement:
        count += 1
    return count, mpf((months_back(maturity, 6 * (count - 1)) - settlement).days) / mpf(182.5)


def price(count, part, coupon, redemption, y):
    accrued = (1 - part) * coupon / 2
    if count == 1:
        return (redemption + coupon / 2) / (1 + part * y / 2) - accrued
    v = 1 + y / 2
    return redemption * v ** -(count - 1 + part) + sum(coupon / 2 * v ** -(k - 1 + part)
                                                       for k in range(1, count + 1)) - accrued


def odd_factor(i, part, simple):
    return 1 + part * i if simple else (1 + i) ** part


def halve(excess, high):
    """The root as the calculator wants it, halved to 0.00001; None where that hangs on the last digits."""
    while excess(high) > 0:
        high *= 2
    low, middle = 0.0, high * 0.5
    for _ in range(200):
        difference = excess(middle)
        if abs(abs(difference) - mpf("1e-5")) < mpf("1e-8"):
            return None
        if abs(difference) < 1e-5:
            return middle
        low, high = (middle, high) if difference > 0 else (low, middle)
        middle = (low + high) * 0.5
    return None


def nearest_root(flows):
    """The rate nearest to 0.1 of flows of any signs, by all roots of their polynomial."""
    while flows[-1] == 0:
        flows = flows[:-1]
    roots = polyroots([mpf(flow) for flow in flows], maxsteps=500, extraprec=400)
    rates = sorted((abs(r.real - 1 - mpf(0.1)), r.real - 1) for r in roots if abs(r.imag) < 1e-40 and r.real > 1e-6)
    if not rates or (len(rates) > 1 and rates[1][0] - rates[0][0] < 1e-6):
        return None
    return rates[0][1]


def only_root(flows):
    """The rate of flows that change their sign once."""
    worth = lambda x: sum(mpf(flow) * x ** k for k, flow in enumerate(flows))  # x = 1 / (1 + rate)
    bounds = [mpf(x) for x in ("0.02", "0.2", "0.5", "0.7", "0.85", "0.95", "0.99", "1.01", "1.05", "1.2", "2", "50")]
    values = [worth(x) for x in bounds]
    for a, b, fa, fb in zip(bounds, bounds[1:], values, values[1:]):
        if sign(fa) != sign(fb):
            return 1 / root_between(worth, a, b) - 1
    return None


def root_between(function, a, b):
    """Halved until it is close, then by Newton's rule."""
    for _ in range(40):
        middle = (a + b) / 2
        a, b = (middle, b) if sign(function(middle)) == sign(function(a)) else (a, middle)
    x = (a + b) / 2
    for _ in range(6):
        x -= function(x) / diff(function, x)
    return x


def signs_change(flows):
    signs = [sign(flow) for flow in flows if flow != 0]
    return sum(a != b for a, b in zip(signs, signs[1:]))


def condition(function, inputs, fixed=0):
    """How many times as much as its inputs, relatively, the function changes; the last of them may be fixed."""
    value = function(*inputs)
    total = mpf(0)
    for k, x in enumerate(inputs):
        if x and k < len(inputs) - fixed:
            h = x * mpf(10) ** -30
            moved = function(*inputs[:k], x + h, *inputs[k + 1:]) - function(*inputs[:k], x - h, *inputs[k + 1:])
            total += abs(moved / (2 * mpf(10) ** -30) / value)
    return total


def root_condition(flows, root):
    worth = lambda i: sum(mpf(flow) * (1 + i) ** -k for k, flow in enumerate(flows))
    slope = diff(worth, root)
    return sum(abs(flow * (1 + root) ** -k) for k, flow in enumerate(flows)) / abs(slope * root)


def ulps(a, b):
    """The doubles from a to b."""
    count = 0
    a, b = min(a, b), max(a, b)
    while a < b:
        a, count = math.nextafter(a, math.inf), count + 1
    return count


def line(name, inputs, value, worst):
    """None where the problem is no good one."""
    if worst > WORST_CONDITION or abs(value) > 1e300:
        return None
    nearest = float(value)
    error = abs(value) * 8 * (1 + worst) * mpf(2) ** -64
    beside = max(ulps(float(value - error), nearest), ulps(nearest, float(value + error)))
    return f"{name} {' '.join(inputs)} > {nearest!r} {beside}"


def text(x):
    return repr(int(x)) if x == int(x) and abs(x) < 1e15 else repr(x)


def flow_texts(flows):
    texts = []
    for flow in flows:
        if texts and texts[-1][0] == flow:
            texts[-1][1] += 1
        else:
            texts.append([flow, 1])
    return [text(flow) + (f"*{count}" if count > 1 else "") for flow, count in texts]
