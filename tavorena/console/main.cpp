#include <iostream>

#include <tavorena/console/Kommandozeile.h>
#include <tavorena/core/System.h>

using namespace tavorena;

int main(int argc, char** argv) try {
  const Ausgabebetrieb Betrieb;
  const std::vector<std::string> Worte = Programmworte(argc, argv);
  std::vector<const char*> Zeiger;
  for (const std::string& Wort : Worte) Zeiger.push_back(Wort.c_str());
  const Rückgabe Ergebnis = KommandozeileAusführen(static_cast<int>(Zeiger.size()), Zeiger.data(),
                                                   {std::cout, std::cerr, Programmordner()});
  if (std::cout.flush()) return Ergebnis;
  std::cerr << "tavorena-stapel: die Ausgabe läßt sich nicht schreiben\n";
  return NichtGetan;
} catch (const std::exception& Fehler) {
  std::cerr << "tavorena-stapel: " << Fehler.what() << '\n';
  return NichtGetan;
}
