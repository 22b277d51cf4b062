// What an instrument sends, in any pieces: replies, their reduction, and the way to the worksheet.
#include "Fuzzhilfe.h"

#include <algorithm>
#include <vector>

#include <tavorena/forms/Formular.h>
#include <tavorena/rawdata/Antwortpuffer.h>
#include <tavorena/rawdata/Messempfaenger.h>
#include <tavorena/rawdata/Messverteilung.h>
#include <tavorena/rawdata/Zeilenreduktion.h>

namespace tavorena::fuzz {
namespace {

class Testblatt final : public Formular, public Messempfänger {
 public:
  Testblatt() : Formular("TVFStatForm") { MessempfängerAnmelden(*this); }
  ~Testblatt() override { MessempfängerAbmelden(*this); }
  Testblatt(const Testblatt&) = delete;
  Testblatt& operator=(const Testblatt&) = delete;
  Formular& Blatt() override { return *this; }
  [[nodiscard]] std::string Formname() const override { return "tvfstatform"; }
  [[nodiscard]] Messort Fokus() const override { return Messort::Polargitter; }
  [[nodiscard]] std::string Standpunkt() const override { return Stand; }
  [[nodiscard]] bool StandpunktVollständig() const override { return !Stand.empty(); }
  void StandpunktNehmen(const std::string& Nummer, const Messwert& /*Höhe*/) override {
    if (!Nummer.empty()) Stand = Nummer;
  }
  [[nodiscard]] int MessungNehmen(const Messsatz& S) override {
    Prüfen(S.Hz.Gelesen && S.V.Gelesen && S.Strecke.Wert > 0, "nur ganze Messungen kommen ins Blatt");
    return 0;
  }

 private:
  std::string Stand;
};

std::vector<std::string> Antworten(std::string_view Bytes, std::size_t Stück, std::string& Rest) {
  Antwortpuffer P;
  std::vector<std::string> Alle;
  std::string Antwort;
  for (; !Bytes.empty(); Bytes.remove_prefix(std::min(Stück, Bytes.size()))) {
    P.Nehmen(Bytes.substr(0, Stück));
    while (P.Nächste(Antwort)) Alle.push_back(Antwort);
  }
  Rest = P.Rest();
  return Alle;
}

void Reduzieren(const std::string& Zeile) {
  for (const int Modus : {0, 1, 2}) {
    std::string Neu = Zeile;
    const Reduktionsbefund Befund = RohdatenZeileReduzieren(Neu, 0.087, Modus);
    if (Befund != Reduktionsbefund::Reduziert) {
      Prüfen(Neu == Zeile, "ohne Reduktion bleibt die Zeile");
      continue;
    }
    Prüfen(Modus != 0 && Neu.size() == Zeile.size(), "reduziert wird an Ort und Stelle");
    Prüfen(RohdatenZeileReduzieren(Neu, 0.087, Modus) == Reduktionsbefund::BereitsReduziert,
           "ein zweites Mal wird nicht reduziert");
  }
}

void Lauf(Eingabe E) {
  const auto Stück = static_cast<std::size_t>(E.Zahl(1, 200));
  std::string Rest, Ganzer, Zusammen;
  const std::vector<std::string> Alle = Antworten(E.Rest(), Stück, Rest);
  Prüfen(Alle == Antworten(E.Rest(), E.Rest().size(), Ganzer) && Rest == Ganzer,
         "die Stücke entscheiden nichts");
  Testblatt B;
  Messverteilung V;
  for (std::string Antwort : Alle) {
    Zusammen += Antwort;
    TVTheoFragezeichenWeg(Antwort);
    OhneZeilenende(Antwort);
    Reduzieren(Antwort);
    V.Verteilen(Antwort);
  }
  Prüfen(Zusammen + Rest == E.Rest(), "kein Byte geht verloren");
}

}  // namespace
}  // namespace tavorena::fuzz

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* Daten, std::size_t Laenge) {
  tavorena::fuzz::Lauf({Daten, Laenge});
  return 0;
}
