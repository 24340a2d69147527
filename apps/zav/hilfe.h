// The German face of the argument parser: help pages and messages about wrong use.
#pragma once

#include <CLI/CLI.hpp>
#include <string>

namespace zav {

// The help page of the program, or of one command.
class Hilfeseite final : public CLI::FormatterBase {
 public:
  std::string make_help(const CLI::App* app, std::string name, CLI::AppFormatMode mode) const override;
};

// What was wrong, as one German sentence.
std::string Bedienfehler(const CLI::ParseError& fehler, const CLI::App& app);

}  // namespace zav
