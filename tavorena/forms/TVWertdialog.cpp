#include <algorithm>
#include <cmath>

#include <tavorena/core/Datei.h>
#include <tavorena/core/Ports.h>
#include <tavorena/core/TVDialog.h>
#include <tavorena/core/Text.h>
#include <tavorena/core/Zahlen.h>
#include <tavorena/forms/Dateifrage.h>
#include <tavorena/forms/Dialogform.h>
#include <tavorena/forms/TVWertdialog.h>

namespace tavorena {
namespace {

class Wertform final : public Dialogform {
 public:
  Wertform(const std::string& FormTitel, std::span<Wertfeld> Gefragt, Wahlpaar* Wahl)
      : Dialogform("TVWertform", FormTitel), Werte(Gefragt), Paar(Wahl) {
    int Zeile = 0;
    for (const Wertfeld& W : Werte) {
      BeschriftungAnlegen(W.Label, {Zeile, 0});
      Feld& F = FeldAnlegen("Wert(" + std::to_string(Zeile) + ")", {Zeile, 1}, "", 20);
      F.Rechtsbündig = W.Nachkomma >= 0 || W.AbNull;
      F.Text = W.Wert;
      if (W.AbNull) F.BeiVerlassen = [&F] { return IstAbNull(Trimmen(*F.Text)); };
      if (W.Nachkomma >= 0) F.BeiVerlassen = [&F, &W] { return ZahlLesen(F, W); };
      Felder.push_back(&F);
      ++Zeile;
    }
    if (Paar != nullptr) {
      OptionAnlegen("Wahl(0)", Paar->Erste, {Zeile, 0, 2}).Gewählt = !Paar->ZweiteGewählt;
      Zweite = &OptionAnlegen("Wahl(1)", Paar->Zweite, {Zeile + 1, 0, 2});
      Zweite->Gewählt = Paar->ZweiteGewählt;
    }
    OkUndAbbruch([this] { Übernehmen(); });
  }

 private:
  static bool IstAbNull(const std::string& Text) {
    return IstZahlwort(Text) && ZahlAusText(Text) >= 0 && std::isfinite(ZahlAusText(Text));
  }

  static bool ZahlLesen(Feld& F, const Wertfeld& W) {
    if (!IstZahlText(*F.Text)) return false;
    F.Text = Trimmen(ZahlFormat(*F.Text, W.Vorkomma, W.Nachkomma));
    return true;
  }

  void Übernehmen() {
    for (std::size_t i = 0; i < Werte.size(); ++i) Werte[i].Wert = Trimmen(*Felder[i]->Text);
    if (Paar != nullptr) Paar->ZweiteGewählt = Zweite->Gewählt;
    Fertig(0);
  }

  std::span<Wertfeld> Werte;
  std::vector<Feld*> Felder;
  Wahlpaar* Paar;
  Auswahl* Zweite = nullptr;
};

class Knopfform final : public Dialogform {
 public:
  Knopfform(const std::string& FormTitel, const std::string& Text, const std::vector<std::string>& Knöpfe,
            int Vorgabe)
      : Dialogform("TVKnopfform", FormTitel) {
    BeschriftungAnlegen(FormTitel, {0, 0});
    BeschriftungAnlegen(Text, {1, 0});
    for (int i = 0; i < static_cast<int>(Knöpfe.size()); ++i) {
      Knopf& K = KnopfAnlegen("Knopf(" + std::to_string(i) + ")", Knöpfe[static_cast<std::size_t>(i)],
                              [this, i] { Fertig(i); }, {0, i});
      K.Vorgabe = i == Vorgabe;
      K.Abbruch = i + 1 == static_cast<int>(Knöpfe.size());
      if (K.Vorgabe) Erster = &K;
    }
  }

 protected:
  void BeiÖffnen() override { FokusSetzen(*Erster); }

 private:
  Knopf* Erster = nullptr;
};

class Dateiform final : public Dialogform {
 public:
  Dateiform(const std::string& FormTitel, std::span<Dateifeld> Gefragt)
      : Dialogform("TVDateinamenform", FormTitel), Dateien(Gefragt) {
    int Zeile = 0;
    for (Dateifeld& D : Dateien) {
      const std::string Index = "(" + std::to_string(Zeile) + ")";
      BeschriftungAnlegen(D.Label, {Zeile, 0});
      Feld& F = FeldAnlegen("Datei" + Index, {Zeile, 1}, "", 50);
      F.Text = D.Name;
      Felder.push_back(&F);
      KnopfAnlegen(
          "Waehlen" + Index, "...",
          [this, &F, &D] {
            NameWählen(F, D);
            Vorschlagen();
          },
          {Zeile, 2}, "")
          .OhnePrüfung = true;
      ++Zeile;
    }
    Felder[0]->BeiVerlassen = [this] { return Vorschlagen(), true; };
    OkUndAbbruch([this] { Übernehmen(); });
  }

 private:
  // Names that follow the first one, as long as nobody gave another.
  void Vorschlagen() {
    const Dateiname Teile = DateinameZerlegen(Trimmen(*Felder[0]->Text));
    for (std::size_t i = 1; i < Dateien.size(); ++i) {
      const bool Frei = Felder[i]->Text->empty() || *Felder[i]->Text == Vorschlag;
      if (Dateien[i].Endung.empty() || Teile.Grundname.empty() || !Frei) continue;
      Felder[i]->Text = Vorschlag = Teile.Ordner + Teile.Grundname + "." + Dateien[i].Endung;
    }
  }

  static bool IstAusgabe(const Dateifeld& D) { return D.Ausgabe || D.Fortgeschrieben; }

  static void NameWählen(Feld& F, const Dateifeld& D) {
    if (D.Ordner) return OrdnerWählen(F, D);
    const Dateiname Teile = DateinameZerlegen(*F.Text);
    const std::string Vorgabe = F.Text->substr(Teile.Ordner.size());
    const std::string Ordner = Teile.Ordner.empty() ? Startordner() : Teile.Ordner;
    Dateiauftrag Auftrag{D.Label, D.Filter, Ordner, Vorgabe, !IstAusgabe(D), "", false};
    const std::string Name = FragenPort().DateiWählen(Auftrag);
    if (!Name.empty()) F.Text = Name;
  }

  static void OrdnerWählen(Feld& F, const Dateifeld& D) {
    std::string Name = *F.Text;
    if (VerzeichnisWahl(D.Label, Name) == 0) F.Text = Name;
  }

  // An output must not be one of the inputs, and is not written over without a question.
  void Übernehmen() {
    for (std::size_t i = 0; i < Dateien.size(); ++i) {
      const std::string Name = Trimmen(*Felder[i]->Text);
      if (Name.empty() && Dateien[i].Leerbar) continue;
      if (Name.empty()) return FokusSetzen(*Felder[i]);
      if (Dateien[i].Ordner && !OrdnerVorhanden(Name)) {
        LaufzeitFehlerMeldung(Laufzeitfehler::Pfad, "Dialog.VerzeichnisWahl");
        return FokusSetzen(*Felder[i]);
      }
      for (std::size_t k = 0; k < i; ++k) {
        if (IstAusgabe(Dateien[i]) == IstAusgabe(Dateien[k]) || Name != Trimmen(*Felder[k]->Text)) continue;
        Hinweis("Dateiname für Ein- und Ausgabe ist gleich:\n" + Name);
        return FokusSetzen(*Felder[i]);
      }
      if (!Dateien[i].Ausgabe || !DateiVorhanden(Name)) continue;
      const int Antwort = DateiVorhandenFrage(Name);
      if (Antwort < 0) return FokusSetzen(*Felder[i]);
      if (Antwort == 1 && DateiLöschen(Name) < 0)
        return LaufzeitFehlerMeldung(Laufzeitfehler::Zugriff, "Dialog.Dateinamen");
    }
    for (std::size_t i = 0; i < Dateien.size(); ++i) Dateien[i].Name = Trimmen(*Felder[i]->Text);
    Fertig(0);
  }

  std::span<Dateifeld> Dateien;
  std::vector<Feld*> Felder;
  std::string Vorschlag;  // that stands in a field
};

class Listenform final : public Dialogform {
 public:
  Listenform(const std::string& FormTitel, const std::vector<std::string>& Einträge)
      : Dialogform("TVAuswahlform", FormTitel) {
    Auswahl& A = ListeAnlegen("Liste", Einträge, Einträge.empty() ? "" : Einträge.front(), {0, 0});
    A.Zeichen = 40;
    A.Bezeichnung = FormTitel;
    OkUndAbbruch([this, &A] {
      const auto i = std::find(A.Einträge.begin(), A.Einträge.end(), *A.Text);
      Fertig(i != A.Einträge.end() ? static_cast<int>(i - A.Einträge.begin()) : -1);
    });
  }
};

int Knopffrage(const std::string& Titel, const std::string& Text, const std::vector<std::string>& Knöpfe,
               int Vorgabe) {
  return Knopfform(Titel, Text, Knöpfe, Vorgabe).Zeigen();
}

}  // namespace

int Wertdialog(const std::string& Titel, std::span<Wertfeld> Felder, Wahlpaar* Wahl) {
  return Wertform(Titel, Felder, Wahl).Zeigen();
}

int EinWert(const std::string& Titel, Wertfeld& Feld, Wahlpaar* Wahl) {
  return Wertdialog(Titel, std::span(&Feld, 1), Wahl);
}

int EinWert(const std::string& Titel, const std::string& Label, std::string& Wert) {
  Wertfeld F{Label, Wert};
  const int Ergebnis = EinWert(Titel, F);
  Wert = F.Wert;
  return Ergebnis;
}

int ZweiWerte(const std::string& Titel, const std::string& Label1, std::string& Wert1,
              const std::string& Label2, std::string& Wert2) {
  Wertfeld F[] = {{Label1, Wert1}, {Label2, Wert2}};
  const int Ergebnis = Wertdialog(Titel, F);
  Wert1 = F[0].Wert;
  Wert2 = F[1].Wert;
  return Ergebnis;
}

int DreiWerte(const std::string& Titel, std::span<Wertfeld, 3> Felder) { return Wertdialog(Titel, Felder); }

int EinDateiname(const std::string& Titel, Dateifeld& Feld) {
  return Dateiform(Titel, std::span(&Feld, 1)).Zeigen();
}

int ZweiDateinamen(const std::string& Titel, std::span<Dateifeld, 2> Felder) {
  return Dateiform(Titel, Felder).Zeigen();
}

int DreiDateinamen(const std::string& Titel, std::span<Dateifeld, 3> Felder) {
  return Dateiform(Titel, Felder).Zeigen();
}

int AuswahlListe(const std::string& Titel, const std::vector<std::string>& Einträge) {
  return Listenform(Titel, Einträge).Zeigen();
}

int PunktbereichFrage(const std::string& Titel, std::string& Von, std::string& Bis) {
  return ZweiWerte(Titel, "Von Punktnr.", Von, "Bis Punktnr.", Bis);
}

int VerzeichnisWahl(const std::string& Titel, std::string& Verzeichnis) {
  std::string Neu = Verzeichnis;
  for (;;) {
    if (EinWert(Titel, "Verzeichnis:", Neu) < 0) return -1;
    if (OrdnerVorhanden(Neu)) break;
    LaufzeitFehlerMeldung(Laufzeitfehler::Pfad, "Dialog.VerzeichnisWahl");
  }
  Verzeichnis = Neu;
  return 0;
}

int DateiVorhandenFrage(const std::string& Dateiname) {
  const std::string Kurz = ZeichenAnzahl(Dateiname) > 50 ? "..." + FeldRechts(Dateiname, 50) : Dateiname;
  const int Knopf =
      Knopffrage("Datei schon vorhanden:", Kurz, {"A&nhängen", "&Überschreiben", "- &Abbruch -"}, 2);
  return Dialogergebnis = Knopf == 2 ? -1 : Knopf;
}

int PunktVorhandenFrage(const std::string& Pnr) {
  Knopfform Form("Punkt schon vorhanden:", Zitat(Pnr), {"&Weiter", "&Zurück"}, 0);
  Form.Ungefragt = true;
  return Form.Zeigen() == 0 ? 0 : 1;
}

int PunktVorhandenOrientierungFrage(const std::string& Pnr) {
  const int Knopf =
      Knopffrage("Punkt schon vorhanden:", Zitat(Pnr), {"&Orientierung", "&Zurück", "&Abbruch"}, 0);
  return Knopf < 0 ? 2 : Knopf;
}

}  // namespace tavorena
