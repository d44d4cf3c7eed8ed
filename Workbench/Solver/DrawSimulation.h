#pragma once

#include <QtCore/QByteArray>

#include <vector>

namespace Zorvane::Workbench {

/** What a draw is computed from. Lengths in millimetres. */
struct DrawParameters
{
    double thickness = 1;
    double punchRadius = 50;
    double depth = 60;
    int steps = 150;
};

/** What a press would show at one stroke. */
struct DrawStep
{
    /** In millimetres. */
    double stroke = 0;
    /** In kilonewtons. */
    double punchForce = 0;
    double largestThinningPercent = 0;
};

/**
 * Draws a sheet over a round punch, stroke by stroke: a strip of the sheet from the punch's centre
 * to its rim is stretched, hardens as it does, and sticks to the punch the more the further it is
 * wrapped around it. The same parameters give the same numbers.
 *
 * It shows what a simulation is like in a program: it takes a while, and ends in a table. Not
 * supported: telling what a press does.
 */
class DrawSimulation
{
public:
    explicit DrawSimulation(const DrawParameters& parameters);

    int done() const { return int(m_results.size()); }
    int total() const { return m_parameters.steps; }
    bool isDone() const { return done() >= total(); }
    /** Computes the next stroke, a few milliseconds of work; nothing when all are done. */
    void advance();

    const std::vector<DrawStep>& results() const { return m_results; }
    /** Comma-separated, a row a stroke under one of titles. */
    QByteArray table() const;

private:
    double tension(double strain) const;
    void relax(double meanStrain, double wrapAngle);

    DrawParameters m_parameters;
    /** Of each piece of the strip, from the centre on. */
    std::vector<double> m_strains;
    std::vector<DrawStep> m_results;
};

} // namespace Zorvane::Workbench
