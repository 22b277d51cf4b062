#include <filesystem>
#include <iostream>

#include <tavorena/console/Kommandozeile.h>

using namespace tavorena;

int main(int argc, char** argv) try {
  std::error_code Fehler;
  // Where the running program lies; the current folder must not count, whatever the call says.
  const std::filesystem::path Programm = std::filesystem::read_symlink("/proc/self/exe", Fehler);
  const Rückgabe Ergebnis =
      KommandozeileAusführen(argc, argv, {std::cout, std::cerr, Programm.parent_path().string()});
  if (std::cout.flush()) return Ergebnis;
  std::cerr << "tavorena-stapel: die Ausgabe läßt sich nicht schreiben\n";
  return NichtGetan;
} catch (const std::exception& Fehler) {
  std::cerr << "tavorena-stapel: " << Fehler.what() << '\n';
  return NichtGetan;
}
