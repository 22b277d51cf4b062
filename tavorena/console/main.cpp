#include <exception>
#include <filesystem>
#include <iostream>

#include <CLI/CLI.hpp>

#include <tavorena/console/Stapelbefehl.h>

int main(int argc, char** argv) try {
  tavorena::Stapelauftrag Auftrag;
  CLI::App App("Spielt eine Stapeldatei (*.sta) auf einer Koordinatendatei ab.", "tavorena-stapel");
  App.get_formatter()->label("REQUIRED", "nötig");
  App.set_help_flag("-h,--help", "Diese Hilfe");
  App.add_option("--koordinaten", Auftrag.Koordinaten, "Koordinatendatei (*.kor, *.lt4)")->required();
  App.add_option("--protokoll", Auftrag.Protokoll,
                 "Protokolldatei (*.dru); eine vorhandene wird fortgeschrieben");
  App.add_option("--vorhanden", Auftrag.Vorhanden, "Antwort, wenn eine Punktnummer schon vergeben ist")
      ->check(CLI::IsMember({"abbruch", "alt-loeschen", "mittel", "neu-loeschen"}));
  App.add_option("--speichern", Auftrag.Speichern, "Datei für die Koordinaten nach dem Lauf");
  App.add_option("stapel", Auftrag.Stapel, "Stapeldatei (*.sta)")->required();
  CLI11_PARSE(App, argc, argv);
  std::error_code Fehler;
  const std::filesystem::path Programm = std::filesystem::absolute(argv[0], Fehler).parent_path();
  return tavorena::StapelAusführen(Auftrag, std::cout, std::cerr, Programm.string());
} catch (const std::exception& Fehler) {
  std::cerr << "tavorena-stapel: " << Fehler.what() << '\n';
  return 1;
}
