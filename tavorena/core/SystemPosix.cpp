#include <cstdlib>
#include <filesystem>

#include <tavorena/core/System.h>

namespace tavorena {

std::string Umgebungswert(const std::string& Name) {
  const char* const Wert = std::getenv(Name.c_str());
  return Wert != nullptr ? Wert : "";
}

std::string Einstellungsordner() {
  const std::string Xdg = Umgebungswert("XDG_CONFIG_HOME");
  return !Xdg.empty() ? Xdg + "/tavorena" : Umgebungswert("HOME") + "/.config/tavorena";
}

std::string Programmordner() {
  std::error_code Fehler;
  return std::filesystem::read_symlink("/proc/self/exe", Fehler).parent_path().string();
}

std::string Anschlußname(int Nummer) { return "/dev/ttyS" + std::to_string(Nummer - 1); }

bool SchriftAnmelden(const std::string& /*Datei*/) { return false; }

std::tm Ortszeit(std::time_t Sekunden) {
  std::tm Zeit{};
  localtime_r(&Sekunden, &Zeit);
  return Zeit;
}

std::vector<std::string> Programmworte(int Anzahl, const char* const* Worte) {
  return {Worte, Worte + Anzahl};
}

Ausgabebetrieb::Ausgabebetrieb() = default;
Ausgabebetrieb::~Ausgabebetrieb() = default;

}  // namespace tavorena
