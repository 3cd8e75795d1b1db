#include "results/tie_breaker_report.h"

namespace scorvane {

std::string tieBreakerReport() {
  return "\n\n\t                  Rules for Breaking Ties\n\n"
         "\n\n\n\tScoring and tie-breakers for overall placings (non-reasons scores):\n\n"
         "\t  1. Highest total score overall wins, if there is a tie then,\n"
         "\t  2. Highest total reasons score breaks the tie, if there is still a tie then,\n"
         "\t  3. Lower placings in reasons class(es) wins (the rationale is that the\n"
         "\t     contestant with the lower placings in the reasons class(es) had to\n"
         "\t     \"talk\" harder to get the same reasons scores and tie above, so they\n"
         "\t     likely did a better job of reasons justification)\n\n\n\n\n"
         "\tScoring and tie-breakers for a reasons score:\n\n"
         "\t  1. Highest total Score in the reasons class(es) wins, if there is a tie then,\n"
         "\t  2. Lower placings in reasons class(es) (see rationale above) wins, if there\n"
         "\t     is still a tie then,\n"
         "\t  3. Highest total overall score wins\n\n\n\n\n"
         "\tScoring and tie-breakers within a species/category:\n\n"
         "\t  1. Highest total score within the species/category wins, if there is a tie then,\n"
         "\t  2. Highest total reasons score within the species/category wins, if there is\n"
         "\t     still a tie then,\n"
         "\t  3. Highest total reasons score overall wins, if there is still a tie then,\n"
         "\t  4. Highest total score overall wins\n";
}

}  // namespace scorvane
