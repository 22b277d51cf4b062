#include <algorithm>

#include <tavorena/core/Datei.h>
#include <tavorena/core/Ports.h>
#include <tavorena/core/TVDialog.h>
#include <tavorena/core/Text.h>
#include <tavorena/core/Zahlen.h>
#include <tavorena/forms/Formular.h>
#include <tavorena/forms/TVWertdialog.h>

namespace tavorena {
namespace {

// A modal form that ends with a result; -1 until a button says otherwise.
class Dialogform : public Formular {
 public:
  Dialogform(const std::string& Objekt, const std::string& FormTitel) : Formular(Objekt) {
    Titel = FormTitel;
  }

  int Zeigen() {
    Dialogergebnis = -1;
    AnzeigePort().FormularZeigen(*this, true);
    return Dialogergebnis;
  }

 protected:
  void Fertig(int Ergebnis) {
    Dialogergebnis = Ergebnis;
    Schließen();
  }

  void OkUndAbbruch() {
    Knopf("OK", "&OK").Vorgabe = true;
    Steuerelement& Nein = Knopf("Abbrechen", "&Abbrechen", {0, 1});
    Nein.Abbruch = Nein.OhnePrüfung = true;
  }
};

class Wertform final : public Dialogform {
 public:
  Wertform(const std::string& FormTitel, std::span<Wertfeld> Gefragt)
      : Dialogform("TVWertform", FormTitel), Werte(Gefragt) {
    int Zeile = 0;
    for (const Wertfeld& W : Werte) {
      Beschriftung(W.Label, {Zeile, 0});
      Steuerelement& F = Feld("Wert(" + std::to_string(Zeile) + ")", {Zeile, 1}, "", 20);
      F.Rechtsbündig = W.Nachkomma >= 0;
      F.Text = W.Wert;
      Felder.push_back(&F);
      ++Zeile;
    }
    OkUndAbbruch();
  }

 protected:
  bool FokusVerloren(Steuerelement& S) override {
    const auto i = std::find(Felder.begin(), Felder.end(), &S) - Felder.begin();
    if (i == std::ssize(Felder)) return true;
    const Wertfeld& W = Werte[static_cast<std::size_t>(i)];
    S.Fehlerhaft = W.Nachkomma >= 0 && !IstZahlText(S.Text);
    if (S.Fehlerhaft) return false;
    if (W.Nachkomma >= 0) S.Text = Trimmen(ZahlFormat(S.Text, W.Vorkomma, W.Nachkomma));
    return true;
  }

  void Geklickt(Steuerelement& S) override {
    if (S.Name != "OK") return Fertig(-1);
    for (std::size_t i = 0; i < Werte.size(); ++i) Werte[i].Wert = Trimmen(Felder[i]->Text);
    Fertig(0);
  }

 private:
  std::span<Wertfeld> Werte;
  std::vector<Steuerelement*> Felder;
};

class Knopfform final : public Dialogform {
 public:
  Knopfform(const std::string& FormTitel, const std::string& Text, const std::vector<std::string>& Knöpfe,
            int Vorgabe)
      : Dialogform("TVKnopfform", FormTitel) {
    Beschriftung(FormTitel, {0, 0});
    Beschriftung(Text, {1, 0});
    for (int i = 0; i < static_cast<int>(Knöpfe.size()); ++i) {
      Steuerelement& K =
          Knopf("Knopf(" + std::to_string(i) + ")", Knöpfe[static_cast<std::size_t>(i)], {0, i});
      K.Vorgabe = i == Vorgabe;
      K.Abbruch = i + 1 == static_cast<int>(Knöpfe.size());
    }
  }

 protected:
  void BeiÖffnen() override {
    for (const auto& S : Steuerelemente()) {
      if (S->Vorgabe) FokusSetzen(*S);
    }
  }
  void Geklickt(Steuerelement& S) override { Fertig(S.Name[6] - '0'); }
};

class Dateiform final : public Dialogform {
 public:
  Dateiform(const std::string& FormTitel, std::span<Dateifeld> Gefragt)
      : Dialogform("TVDateinamenform", FormTitel), Dateien(Gefragt) {
    int Zeile = 0;
    for (const Dateifeld& D : Dateien) {
      const std::string Index = "(" + std::to_string(Zeile) + ")";
      Beschriftung(D.Label, {Zeile, 0});
      Felder.push_back(&Feld("Datei" + Index, {Zeile, 1}, "", 50));
      Felder.back()->Text = D.Name;
      Knopf("Waehlen" + Index, "...", {Zeile, 2}, "").OhnePrüfung = true;
      ++Zeile;
    }
    OkUndAbbruch();
  }

 protected:
  void Geklickt(Steuerelement& S) override {
    if (S.Name == "Abbrechen") return Fertig(-1);
    if (S.Name == "OK") return Übernehmen();
    const auto i = static_cast<std::size_t>(S.Name[8] - '0');
    const Dateiname Teile = DateinameZerlegen(Felder[i]->Text);
    Dateiauftrag Auftrag{
        Dateien[i].Label, Dateien[i].Filter, Teile.Ordner, Teile.Grundname, !Dateien[i].Ausgabe, "", false};
    const std::string Name = FragenPort().DateiWählen(Auftrag);
    if (!Name.empty()) Felder[i]->Text = Name;
  }

 private:
  // An output must not be one of the inputs, and is not written over without a question.
  void Übernehmen() {
    for (std::size_t i = 0; i < Dateien.size(); ++i) {
      const std::string Name = Trimmen(Felder[i]->Text);
      if (Name.empty()) return FokusSetzen(*Felder[i]);
      for (std::size_t k = 0; k < i; ++k) {
        if (Dateien[i].Ausgabe == Dateien[k].Ausgabe || Name != Trimmen(Felder[k]->Text)) continue;
        Hinweis("Dateiname für Ein- und Ausgabe ist gleich:\n" + Name);
        return FokusSetzen(*Felder[i]);
      }
      if (!Dateien[i].Ausgabe || !DateiVorhanden(Name)) continue;
      const int Antwort = DateiVorhandenFrage(Name);
      if (Antwort < 0) return FokusSetzen(*Felder[i]);
      if (Antwort == 1 && DateiLöschen(Name) < 0)
        return LaufzeitFehlerMeldung(Laufzeitfehler::Zugriff, "Dialog.Dateinamen");
    }
    for (std::size_t i = 0; i < Dateien.size(); ++i) Dateien[i].Name = Trimmen(Felder[i]->Text);
    Fertig(0);
  }

  std::span<Dateifeld> Dateien;
  std::vector<Steuerelement*> Felder;
};

class Listenform final : public Dialogform {
 public:
  Listenform(const std::string& FormTitel, const std::vector<std::string>& Einträge)
      : Dialogform("TVAuswahlform", FormTitel) {
    Liste = &Steuer(Steuerart::Liste, "Liste", Einträge.empty() ? "" : Einträge.front(), {0, 0}, "");
    Liste->Einträge = Einträge;
    Liste->Zeichen = 40;
    OkUndAbbruch();
  }

 protected:
  void Geklickt(Steuerelement& S) override {
    const auto i = std::find(Liste->Einträge.begin(), Liste->Einträge.end(), Liste->Text);
    Fertig(S.Name == "OK" && i != Liste->Einträge.end() ? static_cast<int>(i - Liste->Einträge.begin()) : -1);
  }

 private:
  Steuerelement* Liste;
};

int Knopffrage(const std::string& Titel, const std::string& Text, const std::vector<std::string>& Knöpfe,
               int Vorgabe) {
  return Knopfform(Titel, Text, Knöpfe, Vorgabe).Zeigen();
}

}  // namespace

int Wertdialog(const std::string& Titel, std::span<Wertfeld> Felder) {
  return Wertform(Titel, Felder).Zeigen();
}

int EinWert(const std::string& Titel, const std::string& Label, std::string& Wert) {
  Wertfeld F[] = {{Label, Wert}};
  const int Ergebnis = Wertdialog(Titel, F);
  Wert = F[0].Wert;
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
  const int Knopf = Knopffrage("Punkt schon vorhanden:", Pnr, {"&Weiter", "&Zurück"}, 0);
  return Knopf == 0 ? 0 : 1;
}

int PunktVorhandenOrientierungFrage(const std::string& Pnr) {
  const int Knopf = Knopffrage("Punkt schon vorhanden:", Pnr, {"&Orientierung", "&Zurück", "&Abbruch"}, 0);
  return Knopf < 0 ? 2 : Knopf;
}

}  // namespace tavorena
