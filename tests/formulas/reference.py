#!/usr/bin/python3
"""Makes reference.txt: python3 reference.py > reference.txt (Debian's python3-mpmath).

2,000 random problems for the functions that read the registers, solved with mpmath at 100 digits by the definitions
of reference_formulas.py: sums over periods, schedules payment by payment, roots of polynomials.
"""
import calendar
import random
from datetime import date
import mpmath
from mpmath import diff, mp, mpf

from reference_formulas import *

random.seed(2026)

HEAD = """\
# 2,000 problems for the financial functions and the double nearest to each solution, made by reference.py with
# mpmath {mpmath}, 100 digits, from the exact values of the doubles that stand here. By these definitions:
# PV FV PMT N I, principal and interest (sums of PPMT and IPMT), SLN SYD DDB, NPV IRR: ODF OpenFormula 1.2, section
# 6.12; I and IRR are the solution nearest to 0.1. Price, accrued interest: Mayle, Standard Securities Calculation
# Methods (SIA, 3rd edition 1993), two coupons a year, periods of 182.5 days. Yield and OddRate: halved as Halve says.
# OddGrown, OddPV: (1 + i)^f, or 1 + f i, for an odd period f. INT: -PV i n / basis. %T, d%: percent.
# A line: the function, its arguments as the test names them (flow*count: a flow repeated; dates: yyyymmdd), ">", the
# double nearest to the solution, and how many doubles beside it are taken too: those that a relative error of
# 8 (1 + c) 2^-64 reaches, c the problem's condition: how many times as much as its inputs, relatively, its solution
# changes. That is 0 but where the solution lies that close to the middle between two doubles. Problems of a condition
# above {worst} were not put: their inputs, in doubles, do not fix the 15th digit.
"""


def cents(most, zero=0.0):
    """An amount as it is typed; 0 with that probability."""
    if random.random() < zero:
        return 0.0
    value = round(random.choice([-1, 1]) * 10 ** random.uniform(0, mp.log10(most)), random.choice([0, 2, 2]))
    return float(value) or 1.0


def rate():
    """A rate as the register holds it: a percentage divided by 100."""
    percent = random.choices([round(random.uniform(0.01, 3), 3), round(random.uniform(0.5, 30), 2),
                              random.randint(1, 40), round(random.uniform(40, 2000), 1),
                              random.choice([1e-4, 1e-6, 5e-9]), -round(random.uniform(0.01, 40), 2)],
                             [6, 6, 4, 1, 1, 1])[0]
    return percent / 100


def periods():
    return float(random.choices([random.randint(1, 60), 12 * random.randint(1, 40), random.randint(400, 3000)],
                                [6, 4, 1])[0])


def timing():
    return float(random.randint(0, 1))


def closed(name, function, draw, fixed=0):
    def problem():
        inputs = draw()
        exact = [mpf(x) for x in inputs]
        try:
            value = function(*exact)
        except ZeroDivisionError:
            return None
        if isinstance(value, mp.mpc):
            return None
        if value == 0:
            return f"{name} {' '.join(map(text, inputs))} > 0 0"
        return line(name, map(text, inputs), value, condition(function, exact, fixed))
    return problem


def draw_flows(groups, longest):
    flows = []
    for _ in range(random.randint(1, groups)):
        flows += [cents(1e5, 0.1)] * random.randint(1, longest)
    return flows


def draw_npv():
    i, flows = rate(), draw_flows(6, 24)
    value = npv(mpf(i), *[mpf(flow) for flow in [0.0, *flows]]) or mpf(1)
    return [i, float(-round(float(value) * random.uniform(0.5, 0.99))) if abs(value) < 1e12 else 0.0, *flows]


def npv_problem():
    inputs = draw_npv()
    exact = [mpf(x) for x in inputs]
    value = npv(*exact)
    return value and line("NPV", [text(inputs[0]), *flow_texts(inputs[1:])], value, condition(npv, exact))


def irr_problem():
    if random.random() < 0.5:
        first, flows = -float(random.randint(500, 5000)), draw_flows(4, random.choice([3, 30]))
        flows = [first, *[abs(flow) / 5 for flow in flows]]
        flows = [first, *[float(round(flow, 2)) for flow in flows[1:]]]
        root = only_root(flows) if signs_change(flows) == 1 else None
    else:
        flows = [cents(1e4, 0.1) for _ in range(random.randint(3, 9))]
        root = nearest_root(flows) if signs_change(flows) > 1 else None
    if not root or not -0.99 < root < 100:
        return None
    return line("IRR", flow_texts(flows), root, root_condition(flows, root))


def rate_problem():
    n, t = periods(), timing()
    pv, pmt, fv = cents(1e5, 0.2), cents(1e4, 0.2), cents(1e5, 0.4)
    if n > 600 or random.random() < 0.3:
        n = float(random.randint(1, 12))
    flows = [mpf(pv)] + [mpf(0)] * int(n)
    for k in range(int(n)):
        flows[k + (0 if t else 1)] += mpf(pmt)
    flows[-1] += mpf(fv)
    changes = signs_change(flows)
    if not changes or (changes > 1 and n > 12):
        return None
    root = only_root(flows) if changes == 1 else nearest_root(flows)
    if not root or not -0.99 < root < 100:
        return None
    x = 1 / (1 + root)
    slope = diff(lambda i: sum(flow * (1 + i) ** -k for k, flow in enumerate(flows)), root)
    paid = mpf(pmt) * sum(x ** (k + (0 if t else 1)) for k in range(int(n)))
    worst = (abs(pv) + abs(paid) + abs(fv * x ** n)) / abs(slope * root)
    return line("I", map(text, [n, pmt, pv, fv, t]), root, worst)


def draw_n():
    i, pmt, pv, fv = rate(), cents(1e4, 0.3), cents(1e5, 0.3), cents(1e5, 0.3)
    return [i, pmt, pv, fv, timing()]


def draw_amortization():
    n = float(random.choice([random.randint(1, 60), 12 * random.randint(1, 30)]))
    return [rate(), n, cents(1e6), float(random.randint(1, int(n)))]


def draw_year():
    life = float(random.choice([random.randint(1, 40), random.randint(2, 500) / 4]))
    return life, float(random.randint(1, max(1, int(life))))


def draw_syd():
    life, year = draw_year()
    return [cents(1e6), cents(1e5, 0.3), life, year]


def draw_ddb():
    life, year = draw_year()
    cost = abs(cents(1e6))
    return [cost, float(round(cost * random.choice([0, 0.1, 0.2, 0.5]))), life, year,
            random.choice([1.0, 1.25, 1.5, 2.0, 2.0, 3.0, 0.5])]


def draw_day(first, last):
    return date.fromordinal(random.randint(date(first, 1, 1).toordinal(), date(last, 12, 31).toordinal()))


def bond_problem(name):
    def problem():
        settlement = draw_day(1990, 2060)
        maturity = draw_day(settlement.year, settlement.year + random.choice([1, 10, 40]))
        if random.random() < 0.4:  # coupons at the ends of months
            last = calendar.monthrange(maturity.year, maturity.month)[1]
            maturity = maturity.replace(day=random.randint(28, last))
        if maturity <= settlement:
            return None
        count, part = coupons(settlement, maturity)
        coupon, y = random.choice([0.0, round(random.uniform(0.25, 14), 3)]), abs(rate()) % 1
        redemption = random.choice([100.0, 100.0, round(random.uniform(50, 120), 2)])
        number = lambda day: str(day.year * 10000 + day.month * 100 + day.day)
        dates = [number(settlement), number(maturity)]
        if name == "Accrued":
            value = (1 - part) * mpf(coupon) / 2
            return value and line(name, [*dates, text(coupon)], value, mpf(1) + abs(part / (1 - part)))
        c, r = mpf(coupon), mpf(redemption)
        if name == "Price":
            function = lambda *x: price(count, *x)
            inputs = [part, c, r, mpf(y)]
            return line(name, [*dates, text(coupon), text(redemption), text(y)], function(*inputs),
                        condition(function, inputs))
        paid = float(round(price(count, part, c, r, mpf(y)), 3))
        if not 0 < paid < price(count, part, c, r, 0):
            return None
        found = halve(lambda x: price(count, part, c, r, mpf(x)) - mpf(paid), 1.0)
        return found and f"{name} {' '.join(dates)} {text(coupon)} {text(redemption)} {text(paid)} > {found!r} 0"
    return problem


def odd_rate_problem():
    n, part, simple, t = random.randint(1, 120), random.randint(1, 99) / 100, timing(), timing()
    whole = float(n) + part
    part = whole - n
    pmt, fv = -abs(cents(1e3, 0.25)), -abs(cents(1e4, 0.4))
    value = lambda i: annuity_pv(mpf(i), n, mpf(pmt), mpf(fv), mpf(t)) / odd_factor(mpf(i), mpf(part), simple)
    i = abs(rate())
    pv = float(round(value(i), 2))
    inputs = [float(n), part, pmt, pv, fv, t, simple]
    if pmt == 0:
        if fv == 0 or pv == 0:
            return None
        function = lambda n_f, p, f: (-f / p) ** (1 / n_f) - 1
        exact = [mpf(whole), mpf(pv), mpf(fv)]
        found = function(*exact)
        return found and line("OddRate", map(text, inputs), found, condition(function, exact))
    if pv < 1:
        return None
    found = halve(lambda x: value(x) - mpf(pv), 0.01)
    return found and f"OddRate {' '.join(map(text, inputs))} > {found!r} 0"


def draw_odd_pv():
    return [rate(), float(random.randint(0, 240)), random.randint(1, 99) / 100, cents(1e4, 0.2), cents(1e5, 0.3),
            timing(), timing()]


def odd_pv(i, n, part, pmt, fv, t, simple):
    return annuity_pv(i, n, pmt, fv, t) / odd_factor(i, part, simple > 0.5)


PROBLEMS = [
    (140, closed("PV", annuity_pv, lambda: [rate(), periods(), cents(1e4, 0.2), cents(1e5, 0.3), timing()])),
    (140, closed("FV", annuity_fv, lambda: [rate(), periods(), cents(1e4, 0.2), cents(1e5, 0.3), timing()])),
    (140, closed("PMT", annuity_pmt, lambda: [rate(), periods(), cents(1e6, 0.1), cents(1e5, 0.4), timing()])),
    (140, closed("N", annuity_n, draw_n)),
    (140, rate_problem),
    (120, npv_problem),
    (120, irr_problem),
    (40, closed("SLN", lambda c, s, n: (c - s) / n, lambda: draw_syd()[:3])),
    (80, closed("SYD", lambda c, s, n, k: (c - s) * (n - k + 1) * 2 / (n * (n + 1)), draw_syd)),
    (120, closed("DDB", declining, draw_ddb)),
    (110, closed("Principal", lambda *x: schedule(*x)[0], draw_amortization, fixed=1)),
    (110, closed("Interest", lambda *x: schedule(*x)[1], draw_amortization, fixed=1)),
    (140, bond_problem("Price")),
    (40, bond_problem("Accrued")),
    (100, bond_problem("Yield")),
    (60, closed("INT", lambda pv, i, n, basis: -pv * i * n / basis,
                lambda: [cents(1e6), rate(), float(random.randint(1, 2000)), random.choice([360.0, 365.0])])),
    (40, closed("OddGrown", lambda pv, i, f, simple: pv * odd_factor(i, f, simple > 0.5),
                lambda: [cents(1e6), rate(), random.randint(1, 99) / 100, timing()])),
    (80, closed("OddPV", odd_pv, draw_odd_pv)),
    (80, odd_rate_problem),
    (30, closed("%T", lambda a, b: (b / a if b <= a else a / b) * 100, lambda: [cents(1e6), cents(1e6)])),
    (30, closed("d%", lambda a, b: (b - a) * 100 / a, lambda: [cents(1e6), cents(1e6)])),
]


def main():
    print(HEAD.format(mpmath=mpmath.__version__, worst=WORST_CONDITION), end="")
    for count, problem in PROBLEMS:
        while count:
            row = problem()
            if row:
                print(row)
                count -= 1


main()
