#ifndef RoleNames_h
#define RoleNames_h

#include <string_view>

/// Names that people give to columns, in English, German, French and Spanish, whatever their case,
/// their blanks, points and underscores, and without the unit in brackets behind them.
namespace Talmesh::app
{

/// What is measured in a row of a long table: species, variable, observableId, item, Spezies.
bool isItemName(std::string_view name);

/// The value that goes with it: value, conc, measurement, Wert, valeur.
bool isValueName(std::string_view name);

/// How exact a value is: sd, sem, stderr, noiseParameters, "X_sd".
bool isErrorName(std::string_view name);

/// What sums several values up: mean, _mean, average, median, Mittelwert.
bool isMeanName(std::string_view name);

/// What R, pandas and others call a column of row numbers: rownames, X, ...1, "Unnamed: 0", index.
bool isRowNumberName(std::string_view name);
/// Whether that says nothing else: rownames, "Unnamed: 0", but neither X nor index.
bool namesRowsOnly(std::string_view name);

/// What numbers the draws of a sampler or the starts of a fit: chain, draw, iteration, start.
bool isDrawName(std::string_view name);

/// What comes out of a run in one number: loss, chi2, lp__, objective, score.
bool isResultName(std::string_view name);

/// What parameters of models are mostly called: k1, k_on, Km, Vmax, alpha, theta[3].
bool isParameterName(std::string_view name);

/// What may count the times of runs where its numbers rise so: year, hours, cycle, iteration, age.
bool isCountingName(std::string_view name);

/// Whether only restarts make such a name one of times: an age is mostly a quantity.
bool countsInRunsOnly(std::string_view name);

/// What may name the runs where its cells part them: ID, seed, trial, well, particle, animal.
bool isMemberName(std::string_view name);

/// Names whose cells are names, also where they are numbers: replicate_id, conditionId.
bool isKeyName(std::string_view name);

} // namespace Talmesh::app

#endif
