// Opening and saving projects for the commands: file names as the user writes them, results as one answer.
#pragma once

#include <filesystem>
#include <string>

#include "befehl.h"

namespace zav {

// The name with ".zav" behind it, unless it has that already; an absolute path, since it goes into the list
// of last files.
std::filesystem::path Projektpfad(const std::string& datei);

// Loads a project into the store. False when that was refused or the file could not be read to its end (a
// command that saves would lose the rest); the reason has been shown.
bool Projekt_oeffnen(Lauf& lauf, const std::string& datei);
// Saves the project in the store under that name. False when that failed; the reason has been shown.
bool Projekt_sichern(Lauf& lauf, const std::filesystem::path& pfad);

// Asks before replacing a file; true when there is none or it may go.
bool Ersetzen_erlaubt(const std::filesystem::path& pfad);

}  // namespace zav
