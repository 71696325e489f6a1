// Every Presets function with sample arguments, in the order of the library's
// header: what `vantrel presets` resolves for each theme and what the
// gallery's overview draws, one row per function, one column per theme.
#pragma once

#include <vantrel/Vantrel.h>

#include <functional>
#include <string>
#include <vector>

namespace VantrelTool {

struct PresetFunction {
    std::string name; // as called, with the distinguishing arguments
    std::function<Vantrel::BaseCallout *(Vantrel::Presets::Theme)> make;
};

std::vector<PresetFunction> const &presetFunctions();

// The class of a callout without its namespace, or "null".
std::string className(Vantrel::BaseCallout const *callout);

// Runs `vantrel presets` with the arguments after it; returns the exit status.
int runPresets(std::vector<std::string> const &args);

} // namespace VantrelTool
