#pragma once

#include <functional>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

// The records of the batch file. A record is described once: its keyword and its places, each bound to the
// variable that it stands for. Writing shows the variables in fixed columns, reading fills them from free
// tokens: whatever stands in one line can be read back from it.
//
// A kind with rows hands its head to Verbindung::Sätze and each row to Aufzeichnung::Zeile. A case or a list
// is one block: all its records are Verbindung::Sätze (EndeMitZeilen false for a case, true for a list), its
// lines of the protocol go to Aufzeichnung::Zeile with an empty record, Aufzeichnung::Beenden closes it. In a
// replay one call of its reader takes the block with its end.

namespace tavorena {

/// A place of a record. Behind the keyword stands the first one as it is; the others follow after two blanks.
class Satzfeld {
 public:
  enum class Art {
    Pnr,
    NeuePnr,
    WeiterePnr,
    Zahl,
    Messzahl,
    Langzahl,
    Kurzzahl,
    Ablesung,
    Wort,
    Text,
    WeitererText,
    Neupunkt
  };
  Satzfeld(Art WieGeschrieben, std::string& Variable, std::string* Zweite = nullptr)
      : Form(WieGeschrieben), Worte(&Variable), Symbol(Zweite) {}
  Satzfeld(Art WieGeschrieben, double& Variable) : Form(WieGeschrieben), Wert(&Variable) {}

  /// Appends it to a line.
  void Anfügen(std::string& Zeile, bool Erstes) const;
  /// Takes it from the rest of a line; what is missing there gives 0 or an empty text.
  void Nehmen(std::string_view& Rest) const;
  /// Neither 0 nor an empty text.
  [[nodiscard]] bool Gefüllt() const { return Wert != nullptr ? *Wert != 0 : !Worte->empty(); }

 private:
  Art Form;
  std::string *Worte = nullptr, *Symbol = nullptr;
  double* Wert = nullptr;
};

/// @name Places of a record
/// @{
namespace satz {
/// A point number.
inline Satzfeld Pnr(std::string& X) { return {Satzfeld::Art::Pnr, X}; }
/// A number to store a point under; "-" for none.
inline Satzfeld NeuePnr(std::string& X) { return {Satzfeld::Art::NeuePnr, X}; }
/// The last place, a point number that is left out when it is empty.
inline Satzfeld WeiterePnr(std::string& X) { return {Satzfeld::Art::WeiterePnr, X}; }
/// A value in 7 integer places and 4 decimals.
inline Satzfeld Zahl(double& X) { return {Satzfeld::Art::Zahl, X}; }
/// A value in 9 integer places and 4 decimals, without blanks before it.
inline Satzfeld Messzahl(double& X) { return {Satzfeld::Art::Messzahl, X}; }
/// A value in 10 integer places and 4 decimals, without blanks before it.
inline Satzfeld Langzahl(double& X) { return {Satzfeld::Art::Langzahl, X}; }
/// A value as short as it is.
inline Satzfeld Kurzzahl(double& X) { return {Satzfeld::Art::Kurzzahl, X}; }
/// A reading of a level in 7 integer places and 5 decimals; "-" for none (not a number).
inline Satzfeld Ablesung(double& X) { return {Satzfeld::Art::Ablesung, X}; }
/// A symbol, or a number as it was typed; "-" for none.
inline Satzfeld Wort(std::string& X) { return {Satzfeld::Art::Wort, X}; }
/// A number to store a point under and its symbol; "0  -   -" for no number at all.
inline Satzfeld Neupunkt(std::string& X, std::string& Symbol) {
  return {Satzfeld::Art::Neupunkt, X, &Symbol};
}
/// The rest of the line.
inline Satzfeld Text(std::string& X) { return {Satzfeld::Art::Text, X}; }
/// The same, left out when it is empty.
inline Satzfeld WeitererText(std::string& X) { return {Satzfeld::Art::WeitererText, X}; }
}  // namespace satz
/// @}

/// A record: keyword with the blanks that are written behind it (it may be several words), and its places.
struct Satzform {
  std::string_view Schlüssel;
  std::vector<Satzfeld> Felder;
};

/// A record, or several of which one stands.
struct Stapelsatz {
  Stapelsatz(std::string_view Schlüssel, std::vector<Satzfeld> Felder) {
    Formen.push_back({Schlüssel, std::move(Felder)});
  }
  /// Auswahl, an enumeration or a boolean, is the place of the one that stands.
  template <class T>
  Stapelsatz(T& Auswahl, std::vector<Satzform> Alle)
      : Formen(std::move(Alle)),
        Gewählt([&Auswahl] { return static_cast<std::size_t>(Auswahl); }),
        Wählen([&Auswahl](std::size_t i) { Auswahl = static_cast<T>(i); }) {}

  [[nodiscard]] const Satzform& Form() const { return Formen[Gewählt ? Gewählt() : 0]; }

  std::vector<Satzform> Formen;
  std::function<std::size_t()> Gewählt;
  std::function<void(std::size_t)> Wählen;
};

/// The line of a record.
[[nodiscard]] std::string SatzZeile(const Stapelsatz& S);

/// The next record of a replay, which must be this one.
/// @return 0; -1 error, already told; -2 end of the block
[[nodiscard]] int SatzLesen(const Stapelsatz& S);

/// The records of a block, or of its head.
class Satzfolge {
 public:
  /// Stands in every block.
  void Pflicht(Stapelsatz S) { Plätze.push_back({std::move(S), Bedarf::Pflicht, nullptr, {}, {}}); }
  /// Is written in every block, but may be missing in one that is read.
  void Entbehrlich(Stapelsatz S) { Plätze.push_back({std::move(S), Bedarf::Entbehrlich, nullptr, {}, {}}); }
  /// Is left out while its first place is not filled.
  void Wahl(Stapelsatz S) { Plätze.push_back({std::move(S), Bedarf::Wahl, nullptr, {}, {}}); }
  /// A keyword alone, left out while An is false.
  void Schalter(std::string_view Schlüssel, bool& An) {
    Plätze.push_back({{Schlüssel, {}}, Bedarf::Wahl, &An, {}, {}});
  }
  /// Any number of rows. @param[in] Form  the record of a row
  template <class T>
  void Liste(std::vector<T>& Zeilen, Stapelsatz (*Form)(T&)) {
    T Muster;  // for the keywords alone
    Plätze.push_back({Form(Muster), Bedarf::Liste, nullptr,
                      [&Zeilen, Form](std::vector<std::string>& Ziel) {
                        for (T& Zeile : Zeilen) Ziel.push_back(SatzZeile(Form(Zeile)));
                      },
                      [&Zeilen, Form] { return Form(Zeilen.emplace_back()); }});
  }

  /// The lines in the order in which the records were told.
  [[nodiscard]] std::vector<std::string> Zeilen() const;

  /// Reads records in any order until all that must stand have come; plan name and calculation number are
  /// taken on the way. A record that comes twice is refused.
  /// @return as SatzLesen
  [[nodiscard]] int KopfLesen();
  /// The same up to the end of the block, which it takes: there is nothing more to read in it. A record that
  /// is missing ends the replay with a message.
  /// @return 0; -1 error, already told
  [[nodiscard]] int BlockLesen();

 private:
  enum class Bedarf { Pflicht, Entbehrlich, Wahl, Liste };
  struct Platz {
    Stapelsatz Satz;
    Bedarf Art;
    bool* An;                                                  // of a keyword alone
    std::function<void(std::vector<std::string>&)> Schreiben;  // of a list
    std::function<Stapelsatz()> NeueZeile;
    bool Gelesen = false;
  };
  [[nodiscard]] int EinenLesen();
  [[nodiscard]] const Platz* Fehlender() const;

  std::vector<Platz> Plätze;
};

/// @name What can be read back
/// @{
/// The number can be written in a place of 7 (or 9) integer places and 4 decimals.
[[nodiscard]] bool StapelZahlPaßt(double Zahl);
/// The same for 10 integer places: a blank must stay before it.
[[nodiscard]] bool StapelLangzahlPaßt(double Zahl);
/// The same for 5 decimals.
[[nodiscard]] bool StapelAblesungPaßt(double Zahl);
/// A point number or a symbol: one word, and not "-", which stands for none. The empty text fits.
[[nodiscard]] bool StapelWortPaßt(std::string_view Wort);
/// A text up to the end of its line: no character that ends it, no blank at its ends.
[[nodiscard]] bool StapelTextPaßt(std::string_view Text);
/// @}

/// @name Records that several kinds share
/// @{
/// "PAN" and "PEN" of a connection: numbers of start and end, and the values on them.
[[nodiscard]] std::vector<std::string> StapelKopfLinie(std::string AnfPnr, double AnfWert, std::string EndPnr,
                                                       double EndWert);
/// Reads them; takes plan name and calculation number on the way. @return as SatzLesen
[[nodiscard]] int StapelLesenPnrMitWerte(std::string& AnfPnr, double& AnfWert, std::string& EndPnr,
                                         double& EndWert);

/// A keyword and a point number.
[[nodiscard]] std::string StapelPnr(std::string_view Schlüssel, std::string Pnr);
/// Reads it. @return as SatzLesen
[[nodiscard]] int StapelLesePnr(std::string_view Schlüssel, std::string& Pnr);

/// A keyword, two point numbers and a value.
[[nodiscard]] std::string StapelZweiPnr(std::string_view Schlüssel, std::string Pnr1, std::string Pnr2,
                                        double Wert);
/// Reads it. @return as SatzLesen
[[nodiscard]] int StapelLeseZweiPnr(std::string_view Schlüssel, std::string& Pnr1, std::string& Pnr2,
                                    double& Wert);

/// "NEUPUNKT" as a part of a block.
[[nodiscard]] Stapelsatz Neupunktsatz(std::string& Pnr, std::string& Symbol);
/// "NEUPUNKT": the number under which a result was stored, and its symbol.
[[nodiscard]] std::string StapelNeupunkt(std::string Pnr, std::string Symbol);
/// Reads it. @return as SatzLesen
[[nodiscard]] int StapelLeseNeupunkt(std::string& Pnr, std::string& Symbol);
/// @}

}  // namespace tavorena
