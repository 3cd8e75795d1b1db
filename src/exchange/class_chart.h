// How the field scored in a class, drawn.
#pragma once

#include <string>

#include "model/class_statistics.h"

namespace scorvane {

/// Appends a bar chart of the placing scores, five points a bar and the perfect cards by
/// themselves, as an SVG drawing with its numbers told in words. Nothing without cards.
void appendClassChart(std::string& out, const ClassStatistics& statistics);

}  // namespace scorvane
