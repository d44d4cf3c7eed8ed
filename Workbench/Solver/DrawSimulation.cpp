#include "Workbench/Solver/DrawSimulation.h"

#include <algorithm>
#include <cmath>
#include <numeric>

namespace Zorvane::Workbench {

namespace {

constexpr std::size_t s_pieces = 400;
constexpr int s_sweeps = 2500;

// A mild drawing steel; strength in newtons per square millimetre.
constexpr double s_strength = 540;
constexpr double s_firstStrain = 0.006;
constexpr double s_hardening = 0.22;
constexpr double s_friction = 0.12;
/** How much of what the punch needs comes from stretching; the rest is drawn in. */
constexpr double s_stretchedShare = 0.2;
constexpr double s_pi = 3.14159265358979323846;

} // namespace

DrawSimulation::DrawSimulation(const DrawParameters& parameters)
    : m_parameters(parameters)
    , m_strains(s_pieces, 0)
{}

/** Force per width of a piece, which hardens and gets thinner at once. */
double DrawSimulation::tension(double strain) const
{
    return m_parameters.thickness * s_strength * std::pow(s_firstStrain + strain, s_hardening) *
           std::exp(-strain);
}

/** Shares the stretching out, so that the tension falls along the punch as friction takes it. */
void DrawSimulation::relax(double meanStrain, double wrapAngle)
{
    const double stiffness = 12 * m_parameters.thickness * s_strength;
    for (int sweep = 0; sweep < s_sweeps; ++sweep) {
        const double outermost = tension(m_strains.back());
        double sum = 0;
        for (std::size_t piece = 0; piece < s_pieces; ++piece) {
            const double inwards = 1 - double(piece + 1) / double(s_pieces);
            const double wanted = outermost * std::exp(-s_friction * wrapAngle * inwards);
            double& strain = m_strains[piece];
            strain = std::max(0.0, strain + (wanted - tension(strain)) / stiffness);
            sum += strain;
        }
        const double correction = meanStrain - sum / double(s_pieces);
        for (double& strain : m_strains)
            strain = std::max(0.0, strain + correction);
    }
}

void DrawSimulation::advance()
{
    if (isDone())
        return;
    DrawStep step;
    step.stroke = m_parameters.depth * (done() + 1) / total();
    const double reach = step.stroke / m_parameters.punchRadius;
    const double wrapAngle = std::atan(reach);
    relax(s_stretchedShare * std::log(std::hypot(1.0, reach)), wrapAngle);
    const double largest = *std::max_element(m_strains.begin(), m_strains.end());
    step.punchForce = 2 * s_pi * m_parameters.punchRadius * tension(m_strains.back()) *
                      std::sin(wrapAngle) / 1000;
    step.largestThinningPercent = 100 * (1 - std::exp(-largest));
    m_results.push_back(step);
}

QByteArray DrawSimulation::table() const
{
    QByteArray text = "stroke_mm,punch_force_kn,largest_thinning_percent\n";
    for (const DrawStep& step : m_results)
        text.append(QByteArray::number(step.stroke, 'f', 2))
            .append(',')
            .append(QByteArray::number(step.punchForce, 'f', 2))
            .append(',')
            .append(QByteArray::number(step.largestThinningPercent, 'f', 3))
            .append('\n');
    return text;
}

} // namespace Zorvane::Workbench
