#ifndef AskedParameters_h
#define AskedParameters_h

#include <string>
#include <vector>

class PlotContainer;

/// By which parameters runs were chosen, apart from the words of the choice, which may be lost or
/// name no more than the runs.
namespace Talmesh::app
{

/// The parameters that conditions ask about and these words do not, by the names that filters find
/// them by, in the order of the parameters.
std::vector<std::string> askedBeside(const std::string& words, PlotContainer& container,
                                     const std::vector<std::string>& conditions);

/// Conditions that ask about columns of these names, one for each, and say nothing else.
std::vector<std::string> conditionsOn(const std::vector<std::string>& names);

} // namespace Talmesh::app

#endif
