#include <algorithm>
#include <map>
#include <vector>

#include <tavorena/forms/Bezeichnung.h>
#include <tavorena/forms/Formular.h>

namespace tavorena {
namespace {

using Gruppe = std::vector<const Steuerelement*>;  // the controls of a frame

bool IstText(const Steuerelement& S) {
  return dynamic_cast<const Beschriftung*>(&S) != nullptr && !S.Text->empty();
}

bool HatWert(const Steuerelement& S) {
  const auto* A = dynamic_cast<const Auswahl*>(&S);
  return dynamic_cast<const Feld*>(&S) != nullptr || (A != nullptr && A->Art == Auswahlart::Liste);
}

// Of those that fit the one with the greatest rank.
template <typename Bedingung, typename Rang>
const Steuerelement* Größtes(const Gruppe& Alle, Bedingung Passt, Rang Wie) {
  const Steuerelement* Bestes = nullptr;
  for (const Steuerelement* S : Alle) {
    if (Passt(*S) && (Bestes == nullptr || Wie(*S) > Wie(*Bestes))) Bestes = S;
  }
  return Bestes;
}

// The heading of a column: no value stands behind it, as behind the label of a field.
const Steuerelement* Überschrift(const Gruppe& Alle, const Steuerelement& S) {
  return Größtes(
      Alle,
      [&](const Steuerelement& T) {
        return IstText(T) && T.Ort.Spalte == S.Ort.Spalte && T.Ort.Zeile < S.Ort.Zeile &&
               std::none_of(Alle.begin(), Alle.end(), [&](const Steuerelement* W) {
                 return HatWert(*W) && W->Ort.Zeile == T.Ort.Zeile && W->Ort.Spalte == T.Ort.Spalte + 1;
               });
      },
      [](const Steuerelement& T) { return T.Ort.Zeile; });
}

// The label of a row; without a heading only one right before the control is meant for it.
const Steuerelement* Zeilenname(const Gruppe& Alle, const Steuerelement& S, bool MitÜberschrift) {
  return Größtes(
      Alle,
      [&](const Steuerelement& T) {
        return T.Ort.Zeile == S.Ort.Zeile && T.Ort.Spalte < S.Ort.Spalte &&
               (IstText(T) || (HatWert(T) && !MitÜberschrift));
      },
      [](const Steuerelement& T) { return T.Ort.Spalte; });
}

// The rows of a column below its heading are told apart by their number, if there are several.
std::string Zeilennummer(const Gruppe& Alle, const Steuerelement& S, const Steuerelement* Kopf) {
  const auto Reihen = std::count_if(Alle.begin(), Alle.end(), [&](const Steuerelement* W) {
    return HatWert(*W) && W->Ort.Spalte == S.Ort.Spalte;
  });
  return Kopf == nullptr || Reihen < 2 ? "" : " " + std::to_string(S.Ort.Zeile - Kopf->Ort.Zeile);
}

std::string Benannt(const Formular& Form, const Gruppe& Alle, const Steuerelement& S) {
  if (!S.Bezeichnung.empty()) return S.Bezeichnung;
  const bool MitWert = HatWert(S), IstGitter = dynamic_cast<const Gitter*>(&S) != nullptr;
  if (!MitWert && !IstGitter && S.Text != "...") return Gesprochen(S.Text);
  const Steuerelement* Kopf = MitWert ? Überschrift(Alle, S) : nullptr;
  const Steuerelement* Davor = IstGitter ? nullptr : Zeilenname(Alle, S, Kopf != nullptr || !MitWert);
  const std::string Spalte = Kopf != nullptr ? Gesprochen(Kopf->Text) : "";
  std::string Name = Davor != nullptr && IstText(*Davor) ? Gesprochen(Davor->Text) : "";
  if (Name.empty()) Name = Gesprochen(S.Rahmen) + (MitWert ? Zeilennummer(Alle, S, Kopf) : "");
  if (Name.empty()) Name = Gesprochen(Form.Titel);
  if (S.Text == "..." && !MitWert) return Name + " wählen";
  return Spalte.empty() || Name.ends_with(Spalte) ? Name : Name + " " + Spalte;
}

}  // namespace

std::string Gesprochen(const std::string& Beschriftungstext) {
  std::string Text;
  for (std::size_t i = 0; i < Beschriftungstext.size(); ++i) {
    if (Beschriftungstext[i] == '&' && ++i == Beschriftungstext.size()) break;
    Text += Beschriftungstext[i];
  }
  if (Text.ends_with("...")) Text.resize(Text.size() - 3);
  const std::size_t Von = Text.find_first_not_of(" -"), Bis = Text.find_last_not_of(" -:");
  return Von == std::string::npos || Bis == std::string::npos || Bis < Von ? ""
                                                                           : Text.substr(Von, Bis - Von + 1);
}

std::unordered_map<const Steuerelement*, std::string> Bezeichnungen(const Formular& Form) {
  std::map<std::string, Gruppe> Rahmen;
  for (const auto& S : Form.Steuerelemente()) Rahmen[S->Rahmen].push_back(S.get());
  std::unordered_map<const Steuerelement*, std::string> Namen;
  std::map<std::string, int> Anzahl;
  for (const auto& S : Form.Steuerelemente()) {
    if (dynamic_cast<const Beschriftung*>(S.get()) != nullptr) continue;
    ++Anzahl[Namen[S.get()] = Benannt(Form, Rahmen[S->Rahmen], *S)];
  }
  std::map<std::string, std::vector<const Steuerelement*>> Gleiche;
  for (auto& [S, Name] : Namen) {
    if (Anzahl[Name] > 1 && S->Rahmen != Knopfleiste && !S->Rahmen.empty() && Name != Gesprochen(S->Rahmen))
      Name += ", " + Gesprochen(S->Rahmen);
    Gleiche[Name].push_back(S);
  }
  for (const auto& [Name, Alle] : Gleiche) {
    for (const Steuerelement* S : Alle) {
      if (Alle.size() > 1) Namen[S] += " " + std::to_string(S->Ort.Zeile);
    }
  }
  return Namen;
}

}  // namespace tavorena
