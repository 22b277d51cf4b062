#include <tavorena/core/Text.h>
#include <tavorena/core/Zahlen.h>
#include <tavorena/records/Kastenseiten.h>
#include <tavorena/records/Seiten.h>

namespace tavorena {
namespace {

constexpr int BreiteRahmen = 66;

std::string Rahmenlinie(const char* Ecke) {
  std::string Linie = std::string("      ") + Ecke;
  for (int i = 0; i < BreiteRahmen; ++i) Linie += "─";
  return Linie;
}

}  // namespace

std::vector<std::string> Kastenkopf(int Seite, const std::string& Titel,
                                    const std::vector<std::string>& Innen) {
  std::vector<std::string> Kopf = {Leerzeichen(33) + "- Seite" + ZahlFeld(Seite, 3) + " -", Rahmenlinie("┌"),
                                   "      │             " + Titel};
  for (const std::string& Zeile : Innen) Kopf.push_back("      │ " + Zeile);
  Kopf.push_back(Rahmenlinie("└"));
  return Kopf;
}

std::string Kastenseiten(int ErsteSeite, const std::function<std::vector<std::string>(int)>& Kopf,
                         const std::vector<std::vector<std::string>>& Gruppen) {
  std::string Text;
  int Seite = ErsteSeite, Frei = 0;
  const auto Schreiben = [&](const std::vector<std::string>& Neue) {
    for (const std::string& Zeile : Neue) Text += Zeile + "\r\n";
    Frei -= static_cast<int>(Neue.size());
  };
  for (const auto& Gruppe : Gruppen) {
    if (Frei < std::ssize(Gruppe)) {
      if (!Text.empty()) Text += '\f';
      Frei = DruckzeilenJeSeite;
      Schreiben(Kopf(Seite++));
    }
    Schreiben(Gruppe);
  }
  if (!Text.empty()) Text += '\f';
  return Text;
}

}  // namespace tavorena
