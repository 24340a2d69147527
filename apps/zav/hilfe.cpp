#include "hilfe.h"

#include <algorithm>
#include <array>
#include <string_view>
#include <utility>
#include <vector>

#include "basis/text.h"

namespace zav {

namespace {

using Zeilenpaar = std::pair<std::string, std::string>;

// Two columns, the first as wide as its longest text.
std::string Tafel(std::string_view kopf, const std::vector<Zeilenpaar>& zeilen) {
  if (zeilen.empty()) return {};
  std::size_t breite = 0;
  for (const auto& [links, rechts] : zeilen) breite = std::max(breite, Zeichen_anzahl(links));
  std::string text = "\n" + std::string(kopf) + ":\n";
  for (const auto& [links, rechts] : zeilen) {
    text.append("  ")
        .append(links)
        .append(breite + 2 - Zeichen_anzahl(links), ' ')
        .append(rechts)
        .append("\n");
  }
  return text;
}

std::string Optionsname(const CLI::Option& o) {
  std::string name = o.get_positional() ? o.get_name() : Ersetzen(o.get_name(false, true), ",", ", ");
  if (o.nonpositional() && o.get_type_size() != 0 && !o.get_type_name().empty())
    name += " " + o.get_type_name();
  return name;
}

std::vector<Zeilenpaar> Optionen(const CLI::App& app, bool benannte) {
  std::vector<Zeilenpaar> zeilen;
  for (const CLI::Option* o : app.get_options()) {
    const bool hilfe_des_befehls = app.get_parent() != nullptr && o == app.get_help_ptr();
    if (o->nonpositional() == benannte && !hilfe_des_befehls)
      zeilen.emplace_back(Optionsname(*o), o->get_description());
  }
  return zeilen;
}

std::string Aufruf(const CLI::App& app) {
  const CLI::App* oben = app.get_parent();
  if (oben == nullptr) return "Aufruf: zav [OPTION ...] BEFEHL [ARGUMENT ...]\n";
  std::string zeile = "Aufruf: zav " + app.get_name();
  for (const CLI::Option* o : app.get_options()) {
    const std::string name = Optionsname(*o);
    if (o != app.get_help_ptr()) zeile += o->get_required() ? " " + name : " [" + name + "]";
  }
  return zeile + "\n";
}

}  // namespace

std::string Hilfeseite::make_help(const CLI::App* app, std::string /*name*/,
                                  CLI::AppFormatMode /*mode*/) const {
  std::string text = app->get_description() + ".\n\n" + Aufruf(*app);
  std::vector<Zeilenpaar> befehle;
  for (const CLI::App* b : app->get_subcommands({}))
    befehle.emplace_back(b->get_name(), b->get_description());
  text += Tafel("Befehle", befehle);
  text += Tafel("Argumente", Optionen(*app, false));
  text += Tafel("Optionen", Optionen(*app, true));
  const CLI::App* oben = app->get_parent();
  if (oben != nullptr) text += Tafel("Optionen aller Befehle", Optionen(*oben, true));
  return text + "\n" + app->get_footer() + "\n";
}

namespace {

// The parser's words around a name, and ours.
struct Redewendung {
  CLI::ExitCodes art;
  std::string_view davor;   // the parser's text in front of the name ...
  std::string_view danach;  // ... and behind it
  std::string_view deutsch;
};

constexpr std::array redewendungen{
    Redewendung{CLI::ExitCodes::RequiredError, "", " is required", "Es fehlt: "},
    Redewendung{CLI::ExitCodes::ArgumentMismatch, "", ":", "Es fehlt ein Wert für "},
    Redewendung{CLI::ExitCodes::ArgumentMismatch, "", " was given a disallowed", "Ohne Wert zu schreiben: "},
    Redewendung{CLI::ExitCodes::ConversionError, "Could not convert: ", " = ", "Ohne Wert zu schreiben: "},
    Redewendung{CLI::ExitCodes::ExcludesError, "", " excludes ", "Nicht zusammen möglich: "},
};

// What nobody wanted to have: an option, a command, or one argument too many.
std::string Ueberzaehlig(const std::string& argument, bool befehl_erkannt) {
  if (argument.starts_with("-")) return "Unbekannte Option: " + argument;
  return (befehl_erkannt ? "Zu viele Argumente: " : "Unbekannter Befehl: ") + argument;
}

}  // namespace

std::string Bedienfehler(const CLI::ParseError& fehler, const CLI::App& app) {
  const std::string_view text = fehler.what();
  const auto art = static_cast<CLI::ExitCodes>(fehler.get_exit_code());
  const bool befehl_erkannt = !app.get_subcommands().empty();
  const std::vector<std::string> rest = app.remaining(true);
  if (!rest.empty() && (art == CLI::ExitCodes::ExtrasError || !befehl_erkannt)) {
    return Ueberzaehlig(rest.front(), befehl_erkannt);
  }
  if (art == CLI::ExitCodes::RequiredError && !befehl_erkannt) return "Es fehlt ein Befehl.";
  for (const Redewendung& r : redewendungen) {
    const auto ende = text.find(r.danach, r.davor.size());
    if (art != r.art || !text.starts_with(r.davor) || ende == std::string_view::npos) continue;
    std::string satz{r.deutsch};
    satz += text.substr(r.davor.size(), ende - r.davor.size());
    if (art == CLI::ExitCodes::ExcludesError) satz += ", " + std::string(text.substr(ende + r.danach.size()));
    return satz;
  }
  return std::string(text);  // a check of our own: German already
}

}  // namespace zav
