// What the commands declare alike: the project that they work on, and which values an argument takes.
#pragma once

#include <functional>
#include <string>
#include <vector>

namespace CLI {
class App;
}

namespace zav {

// "" for a value that is possible, else the message that says which are.
using Pruefung = std::function<std::string(const std::string&)>;
Pruefung Eines_von(std::vector<std::string> moegliche);
Pruefung Ganze_zahl_bis(int bis);  // from 0 on

// DATEI: the project that is opened.
void Projektargument(CLI::App& app, std::string& datei);

}  // namespace zav
