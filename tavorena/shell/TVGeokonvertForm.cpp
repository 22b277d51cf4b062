#include <algorithm>
#include <utility>

#include <tavorena/core/Datei.h>
#include <tavorena/core/Text.h>
#include <tavorena/core/Zahlen.h>
#include <tavorena/forms/Dateifrage.h>
#include <tavorena/forms/TVWertdialog.h>
#include <tavorena/shell/TVGeokonvertForm.h>
#include <tavorena/shell/Umrechenbefehle.h>

namespace tavorena {
namespace {

constexpr const char *RahmenKörper = "Ellipsoid- Dimensionen", *RahmenNetz = "Ebene konforme Koordinaten",
                     *RahmenZiel = "Ziel", *RahmenKopf = "Coordinate type", *RahmenDateien = "Dateien";
constexpr const char *NachLänge = "nach Länge", *ImRechtswert = "im Rechtswert";
constexpr int Eingabe = 2;  // the third of the ellipsoids

std::string Nummernwort(int Nummer, const char* Sonst) { return Nummer > 0 ? std::to_string(Nummer) : Sonst; }

std::string AlsText(double Meter) { return ZahlFormat(Meter, -1, 3); }

bool IstUtm(Koordinatenart Art) { return Art == Koordinatenart::UTM; }

}  // namespace

TVGeokonvertForm::TVGeokonvertForm(Umrechenrichtung R, std::string FormTitel, Umrechenwahl& W)
    : Dialogform("TVGeokonvertForm", std::move(FormTitel)), Richtung(R), Ziel(W), Neu(W) {
  Hilfenummer = Umrechenseite;
  EllipsoidAnlegen();
  NetzeAnlegen();
  DateienAnlegen();
  Satz = &BeschriftungAnlegen("", {0, 0});
  Satz->Name = "GeoSatz";
  Ausweg = &BeschriftungAnlegen("", {1, 0});
  Ausweg->Name = "GeoAusweg";
  Ausweg->PlatzHalten = true;
  OkUndAbbruch([this] { Übernehmen(); });
  QuelleAnsehen();
  Darstellen();
}

void TVGeokonvertForm::EllipsoidAnlegen() {
  const std::vector<std::string> Namen = {"Bessel", "International", "Eingabe"};
  for (int i = 0; i < std::ssize(Namen); ++i) {
    const std::string& Name = Namen[static_cast<std::size_t>(i)];
    Auswahl& A = OptionAnlegen("GeoEllipsoid(" + std::to_string(i) + ")", Name, {0, i}, RahmenKörper);
    A.Gewählt = Name == Neu.Was.Ellipsoidname;
    A.BeiWahl = [this, i] { EllipsoidWählen(i); };
    Körper.push_back(&A);
  }
  Halbachsen = &BeschriftungAnlegen("", {1, 0, 3}, RahmenKörper);
  Halbachsen->Name = "GeoHalbachsen";
}

void TVGeokonvertForm::NetzeAnlegen() {
  const bool Wechsel = Richtung == Umrechenrichtung::Wechsel, Eben = Richtung != Umrechenrichtung::NachEbene;
  const auto NetzAnlegen = [this](const std::string& Name, const char* Rahmen, Koordinatenart Art) {
    std::vector<Auswahl*> Beide;
    for (const bool Utm : {false, true}) {
      Auswahl& A = OptionAnlegen(Name + (Utm ? "(1)" : "(0)"), Utm ? "UTM" : "GK", {0, Utm ? 1 : 0}, Rahmen);
      A.Gewählt = IstUtm(Art) == Utm;
      A.BeiWahl = [this] { Darstellen(); };
      Beide.push_back(&A);
    }
    return Beide;
  };
  Netz = NetzAnlegen("GeoNetz", RahmenNetz, Eben ? Neu.Was.Von.Art : Neu.Was.Nach.Art);
  if (Eben)
    AusZone = &NummernlisteAnlegen("GeoAusZone", "aus Zo&ne:", {ImRechtswert, "31", "32", "33"},
                                   Neu.Was.Von.Nummer, {0, 2}, RahmenNetz);
  if (Richtung == Umrechenrichtung::NachGeographisch) {
    for (const bool Cartesian : {false, true}) {
      Auswahl& A = OptionAnlegen(Cartesian ? "GeoArt(1)" : "GeoArt(0)", Cartesian ? "Cartesian" : "Grid",
                                 {0, Cartesian ? 1 : 0}, RahmenKopf);
      A.Gewählt = Cartesian == Neu.Was.Kartesisch;
      if (Cartesian) Kartesisch = &A;
    }
    return;
  }
  if (Wechsel) Zielnetz = NetzAnlegen("GeoZielnetz", RahmenZiel, Neu.Was.Nach.Art);
  const char* const Rahmen = Wechsel ? RahmenZiel : RahmenNetz;
  const bool Utm = IstUtm(Neu.Was.Nach.Art);
  Streifen = &NummernlisteAnlegen("GeoStreifen", "&Streifen:", {NachLänge, "1", "2", "3", "4", "5"},
                                  Utm ? 0 : Neu.Was.Nach.Nummer, {0, 2}, Rahmen);
  Zone = &NummernlisteAnlegen("GeoZone", "&Zone:", {NachLänge, "31", "32", "33"},
                              Utm ? Neu.Was.Nach.Nummer : 0, {0, 4}, Rahmen);
}

Auswahl& TVGeokonvertForm::NummernlisteAnlegen(const char* Name, const char* Label,
                                               std::vector<std::string> Einträge, int Gewählte, Platz Ort,
                                               const char* Rahmen) {
  BeschriftungAnlegen(Label, Ort, Rahmen);
  const std::string Erster = Nummernwort(Gewählte, Einträge.front().c_str());
  Auswahl& A = ListeAnlegen(Name, std::move(Einträge), Erster, {Ort.Zeile, Ort.Spalte + 1}, Rahmen);
  A.BeiWahl = [this] { Darstellen(); };
  return A;
}

void TVGeokonvertForm::DateienAnlegen() {
  Ein = &DateifeldAnlegen("GeoEin", "&Eingabedatei:", 0, Neu.Ein);
  Aus = &DateifeldAnlegen("GeoAus", "A&usgabedatei:", 1, Neu.Aus);
  Ein->BeiVerlassen = [this] {
    Darstellen();
    return true;
  };
}

Feld& TVGeokonvertForm::DateifeldAnlegen(const char* Name, const char* Label, int Zeile,
                                         const std::string& Datei) {
  BeschriftungAnlegen(Label, {Zeile, 0}, RahmenDateien);
  Feld& F = FeldAnlegen(Name, {Zeile, 1}, RahmenDateien, 50);
  F.Text = Datei;
  KnopfAnlegen(
      std::string(Name) + "Waehlen", "...", [this, &F, Zeile] { DateiWählen(F, Zeile > 0); }, {Zeile, 2},
      RahmenDateien)
      .OhnePrüfung = true;
  return F;
}

void TVGeokonvertForm::DateiWählen(Feld& F, bool Ausgabe) {
  const bool Geographisch =
      Richtung == (Ausgabe ? Umrechenrichtung::NachGeographisch : Umrechenrichtung::NachEbene);
  const std::string Alle = "|Alle Dateien |*.*";
  const Dateiname Teile = DateinameZerlegen(*F.Text);
  Dateiauftrag Auftrag{
      Ausgabe ? "Ausgabedatei" : "Eingabedatei",
      (Geographisch ? "Geographische Koordinaten (*.geo;*.txt)|*.geo;*.txt" : "CADdy (*.kor)|*.kor") + Alle,
      Teile.Ordner.empty() ? Startordner() : Teile.Ordner,
      F.Text->empty() ? Geographisch ? "*.geo" : "*.kor" : F.Text->substr(Teile.Ordner.size()),
      !Ausgabe,
      "",
      false};
  std::string Name = FragenPort().DateiWählen(Auftrag);
  if (Name.empty()) return;
  if (Ausgabe) EndungErgänzen(Name, Geographisch ? "*.geo" : "*.kor");
  F.Text = Name;
  Darstellen();
}

// "Eingabe" asks for its axes; without an answer the choice stays as it was.
void TVGeokonvertForm::EllipsoidWählen(int Nummer) {
  if (Nummer == Eingabe) {
    if (HalbachsenFragen()) Neu.Was.Ellipsoidname = "Eingabe";
  } else {
    Neu.Was.Körper = Ellipsoide[static_cast<std::size_t>(Nummer)];
    Neu.Was.Ellipsoidname = *Körper[static_cast<std::size_t>(Nummer)]->Text;
  }
  for (Auswahl* A : Körper) A->Gewählt = *A->Text == Neu.Was.Ellipsoidname;
  Darstellen();
}

bool TVGeokonvertForm::HalbachsenFragen() {
  std::string a = AlsText(Neu.Was.Körper.a), b = AlsText(Neu.Was.Körper.b);
  while (ZweiWerte("Ellipsoid- Werte", "a:", a, "b:", b) == 0) {
    const double Große = ZahlAusText(a), Kleine = ZahlAusText(b);
    if (IstZahlwort(a) && IstZahlwort(b) && HalbachsenMöglich(Große, Kleine)) {
      Neu.Was.Körper = Ellipsoid(Große, Kleine);
      return true;
    }
    Hinweis("Die Halbachsen der Erde in Metern, a die große, wie 6377397.155 und 6356078.963 !");
  }
  return false;
}

// The controls into Neu.
void TVGeokonvertForm::Lesen() {
  const auto Art = [](const std::vector<Auswahl*>& N) {
    return N[1]->Gewählt ? Koordinatenart::UTM : Koordinatenart::GK;
  };
  const auto Nummer = [](const Auswahl* A) { return static_cast<int>(ZahlAusText(*A->Text)); };
  Umrechnung& W = Neu.Was;
  W.Von = W.Nach = {};
  if (AusZone != nullptr) {
    W.Von.Art = Art(Netz);
    W.Von.Nummer = IstUtm(W.Von.Art) ? Nummer(AusZone) : 0;
  }
  if (Streifen != nullptr) {
    W.Nach.Art = Art(Zielnetz.empty() ? Netz : Zielnetz);
    W.Nach.Nummer = Nummer(IstUtm(W.Nach.Art) ? Zone : Streifen);
  }
  W.Kartesisch = Kartesisch != nullptr && Kartesisch->Gewählt;
  Neu.Ein = Trimmen(*Ein->Text);
  Neu.Aus = Trimmen(*Aus->Text);
}

// Which strips the input holds: looked up again when it, or what it is taken for, is another one.
void TVGeokonvertForm::QuelleAnsehen() {
  Lesen();
  const bool OhneBlick = Richtung == Umrechenrichtung::NachEbene || Neu.Was.Von.Nummer > 0;
  const std::string Jetzt = OhneBlick ? "" : (IstUtm(Neu.Was.Von.Art) ? "UTM " : "GK ") + Neu.Ein;
  if (std::exchange(Angesehen, Jetzt) == Jetzt) return;
  Quellstreifen = OhneBlick || Neu.Ein.empty() ? std::vector<int>() : StreifenDerDatei(Neu.Ein, Neu.Was.Von);
}

void TVGeokonvertForm::Darstellen() {
  QuelleAnsehen();
  const Umrechnung& W = Neu.Was;
  const bool Utm = IstUtm(W.Von.Art) || IstUtm(W.Nach.Art), Falsch = VerschiedeneBezugssysteme(W);
  for (Auswahl* A : Körper) A->Aktiv = !Utm;
  Halbachsen->Text =
      Utm ? "GRS 80 (ETRS89)" : "a = " + AlsText(W.Körper.a) + " m,  b = " + AlsText(W.Körper.b) + " m";
  if (AusZone != nullptr) AusZone->Aktiv = IstUtm(W.Von.Art);
  if (Streifen != nullptr) {
    Streifen->Aktiv = !IstUtm(W.Nach.Art);
    Zone->Aktiv = IstUtm(W.Nach.Art);
  }
  const std::string Warum = Bezugssystemtext();
  const std::size_t Weg = Warum.find("Über");
  Satz->Text = Falsch ? Warum.substr(0, Weg) : Umrechensatz(W, Quellstreifen);
  Ausweg->Text = Falsch ? Warum.substr(Weg) : "";
}

void TVGeokonvertForm::Übernehmen() {
  Darstellen();
  if (VerschiedeneBezugssysteme(Neu.Was)) return FehlerMeldung(Bezugssystemtext());
  if (Neu.Ein.empty()) return FokusSetzen(*Ein);
  if (!DateiVorhanden(Neu.Ein)) {
    LesefehlerMelden(Neu.Ein, "");
    return FokusSetzen(*Ein);
  }
  if (Neu.Aus.empty()) return FokusSetzen(*Aus);
  if (SelbeDatei(Neu.Ein, Neu.Aus)) {
    Hinweis("Dateiname für Ein- und Ausgabe ist gleich:\n" + Neu.Aus);
    return FokusSetzen(*Aus);
  }
  if (!ÜberschreibenFragen(Neu.Aus)) return FokusSetzen(*Aus);
  Ziel = Neu;
  Fertig(0);
}

}  // namespace tavorena
