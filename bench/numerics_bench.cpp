// Times the distribution functions on typical points of power computations, next to two libraries of
// statistics that are no part of the program.
#include <benchmark/benchmark.h>

#include <algorithm>
#include <boost/math/distributions/non_central_t.hpp>
#include <boost/math/distributions/students_t.hpp>
#include <cmath>
#include <cstddef>
#include <cstdlib>
#include <fstream>
#include <random>
#include <stdexcept>
#include <string>
#include <vector>

#define MATHLIB_STANDALONE
#include <Rmath.h>

#include "numerics/noncentral_t.h"
#include "numerics/student_t.h"

namespace {

using namespace lorvane::numerics;
namespace policies = boost::math::policies;

using DoublePolicy = policies::policy<policies::promote_double<false>>;

struct Point {
    double t;
    double df;
    double lambda;
};

std::vector<Point> readPoints() {
    std::ifstream file(std::string(LORVANE_TEST_DATA) + "/noncentral_t_typical.csv");
    std::string line;
    std::getline(file, line);
    std::vector<Point> points;
    while (std::getline(file, line)) {
        char* position = line.data();
        Point point{};
        point.t = std::strtod(position, &position);
        point.df = std::strtod(position + 1, &position);
        point.lambda = std::strtod(position + 1, &position);
        points.push_back(point);
    }
    if (points.empty()) {
        throw std::runtime_error("no points to time on");
    }
    return points;
}

/// The points in the order of the file, in which df changes seldom, or shuffled.
const std::vector<Point>& points(bool shuffled) {
    static const std::vector<Point> asGiven = readPoints();
    static const std::vector<Point> mixed = [] {
        std::vector<Point> copy = asGiven;
        std::shuffle(copy.begin(), copy.end(), std::mt19937(3));
        return copy;
    }();
    return shuffled ? mixed : asGiven;
}

/// Calls `function` with one point after the other; argument 1 of the benchmark shuffles them.
template <typename Function>
void timeOnPoints(benchmark::State& state, Function function) {
    const std::vector<Point>& all = points(state.range(0) != 0);
    std::size_t next = 0;
    for (auto _ : state) {
        benchmark::DoNotOptimize(function(all[next]));
        next = next + 1 == all.size() ? 0 : next + 1;
    }
}

void ourLower(benchmark::State& state) {
    NoncentralT noncentralT;
    timeOnPoints(state, [&](const Point& at) { return noncentralT.lower(at.t, at.df, at.lambda); });
}

void ourRejection(benchmark::State& state) {
    NoncentralT noncentralT;
    timeOnPoints(state, [&](const Point& at) {
        return noncentralT.rejection(std::abs(at.t), at.df, at.lambda).above;
    });
}

void ourLowerAtNewDf(benchmark::State& state) {
    NoncentralT noncentralT;
    double shift = 0.0;
    timeOnPoints(state, [&](const Point& at) {
        shift += 1e-9;
        return noncentralT.lower(at.t, at.df + shift, at.lambda);
    });
}

void boostDoubleLower(benchmark::State& state) {
    timeOnPoints(state, [](const Point& at) {
        return cdf(boost::math::non_central_t_distribution<double, DoublePolicy>(at.df, at.lambda), at.t);
    });
}

void boostDefaultLower(benchmark::State& state) {
    timeOnPoints(state,
                 [](const Point& at) { return cdf(boost::math::non_central_t(at.df, at.lambda), at.t); });
}

void rmathLower(benchmark::State& state) {
    timeOnPoints(state, [](const Point& at) { return pnt(at.t, at.df, at.lambda, 1, 0); });
}

/// The significance levels of tests, changing from call to call.
double tailOf(const Point& at) { return at.lambda < 2.0 ? 0.025 : (at.lambda < 4.0 ? 0.05 : 0.005); }

void ourQuantile(benchmark::State& state) {
    timeOnPoints(state, [](const Point& at) { return studentQuantile(tailOf(at), at.df); });
}

void ourQuantileRepeated(benchmark::State& state) {
    StudentQuantile quantile;
    for (auto _ : state) {
        benchmark::DoNotOptimize(quantile(0.025, 38.0));
    }
}

void boostDoubleQuantile(benchmark::State& state) {
    timeOnPoints(state, [](const Point& at) {
        return quantile(
            complement(boost::math::students_t_distribution<double, DoublePolicy>(at.df), tailOf(at)));
    });
}

void boostDefaultQuantile(benchmark::State& state) {
    timeOnPoints(state, [](const Point& at) {
        return quantile(complement(boost::math::students_t(at.df), tailOf(at)));
    });
}

void rmathQuantile(benchmark::State& state) {
    timeOnPoints(state, [](const Point& at) { return qt(tailOf(at), at.df, 0, 0); });
}

BENCHMARK(ourLower)->ArgName("shuffled")->Arg(0)->Arg(1);
BENCHMARK(ourRejection)->ArgName("shuffled")->Arg(0)->Arg(1);
BENCHMARK(ourLowerAtNewDf)->ArgName("shuffled")->Arg(0)->Arg(1);
BENCHMARK(boostDoubleLower)->ArgName("shuffled")->Arg(0)->Arg(1);
BENCHMARK(boostDefaultLower)->ArgName("shuffled")->Arg(0)->Arg(1);
BENCHMARK(rmathLower)->ArgName("shuffled")->Arg(0)->Arg(1);
BENCHMARK(ourQuantile)->ArgName("shuffled")->Arg(0)->Arg(1);
BENCHMARK(ourQuantileRepeated);
BENCHMARK(boostDoubleQuantile)->ArgName("shuffled")->Arg(0)->Arg(1);
BENCHMARK(boostDefaultQuantile)->ArgName("shuffled")->Arg(0)->Arg(1);
BENCHMARK(rmathQuantile)->ArgName("shuffled")->Arg(0)->Arg(1);

}  // namespace

BENCHMARK_MAIN();
