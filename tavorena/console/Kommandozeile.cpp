#include <ostream>

#include <CLI/CLI.hpp>

#include <tavorena/console/Befehle.h>
#include <tavorena/console/Kommandozeile.h>
#include <tavorena/core/Text.h>

namespace tavorena {
namespace {

constexpr const char* Fußzeile =
    "Rückgabewert: 0 getan; 1 nicht oder nicht ganz getan: Eingabe nicht lesbar, Protokoll\n"
    "oder Ausgabe nicht geschrieben, Fehler in der Stapeldatei, Stapeldatei ohne Block, Frage\n"
    "ohne Antwort; 2 falscher Aufruf. Meldungen stehen in der Fehlerausgabe.";

void Eindeutschen(CLI::App& App) {
  const auto Form = App.get_formatter();
  for (const auto& [Englisch, Deutsch] : {std::pair{"Usage", "Aufruf"},
                                          {"OPTIONS", "OPTIONEN"},
                                          {"Positionals", "Angaben"},
                                          {"SUBCOMMAND", "BEFEHL"},
                                          {"SUBCOMMANDS", "BEFEHL"},
                                          {"REQUIRED", "nötig"},
                                          {"Excludes", "nicht mit"}}) {
    Form->label(Englisch, Deutsch);
  }
  Form->column_width(28);
  App.option_defaults()->group("Optionen");
  App.allow_windows_style_options(false);  // "/" begins a file name
  App.set_help_flag("-h,--help", "Diese Hilfe");
  App.footer(Fußzeile);
}

void Gemeinsames(CLI::App& App, Aufruf& A) {
  App.get_help_ptr()->group("Optionen");
  App.add_option("--koordinaten", A.Koordinaten, "Koordinatendatei (*.kor, *.lt4, *.alk, *.eds)")
      ->type_name("DATEI");
  App.add_option("--protokoll", A.Protokoll, "Protokolldatei (*.dru); eine vorhandene wird fortgeschrieben")
      ->type_name("DATEI");
  App.add_option("--vorhanden", A.Vorhanden,
                 "wenn eine Punktnummer schon vergeben ist: abbruch, alt-loeschen, mittel, neu-loeschen, "
                 "alt-umnumerieren=NR, neu-umnumerieren=NR (die nächste freie ab NR)")
      ->type_name("ANTWORT");
  App.add_option("--speichern", A.Speichern, "Datei für die Koordinaten danach")->type_name("DATEI");
  App.add_flag("--trotzdem", A.Trotzdem, "Ja auf Fragen, die vor einem Verlust warnen")
      ->disable_flag_override();
}

void DateiAnmelden(CLI::App& App, const Konsolenbefehl& B, Aufruf& A) {
  if (B.Datei != nullptr) App.add_option("datei", A.Datei, B.Datei)->type_name("");
  if (B.Ziel != nullptr) App.add_option("ziel", A.Ziel, B.Ziel)->type_name("");
}

void EigenesAnmelden(CLI::App& App, const Konsolenbefehl& B, Aufruf& A) {
  for (const Angabe& G : B.Angaben) {
    CLI::Option* Neu = nullptr;
    if (G.Art != nullptr) {
      Neu = App.add_option(G.Name, A.Werte[G.Name], G.Beschreibung)->type_name(G.Art);
    } else {
      Neu = App.add_flag_callback(
                   G.Name, [&A, &G] { A.Werte[G.Name] = "ja"; }, G.Beschreibung)
                ->disable_flag_override();
    }
    if (G.Statt != nullptr) Neu->excludes(G.Statt);
  }
}

// What the parser found wrong, in one line of our own.
std::string Deutsch(const CLI::App& App, const CLI::ParseError& Fehler) {
  const std::string Text = Fehler.what(), Wer = Text.substr(0, Text.find_first_of(": "));
  if (dynamic_cast<const CLI::ExtrasError*>(&Fehler) != nullptr) {
    return "unbekannte Angabe: " + CLI::detail::join(App.remaining(true), " ");
  }
  if (dynamic_cast<const CLI::ArgumentMismatch*>(&Fehler) != nullptr) {
    return Wer + ": die Zahl der Werte stimmt nicht";
  }
  return "falsche Angabe: " + Wer;
}

}  // namespace

Rückgabe KommandozeileAusführen(int Anzahl, const char* const* Worte, const Umfeld& U) {
  const Konsolenbefehl Befehle[] = {
      Stapelbefehl(),      Menübefehl(),       DoppelteBefehl(),   QuasiBefehl(),
      BelegungBefehl(),    LöschBefehl(),      UmnumerierBefehl(), DoppelteMittelnBefehl(),
      MittelBefehl(),      VerschiebeBefehl(), ÜbernahmeBefehl(),  DxfBefehl(),
      GesamtdateiBefehl(), GsiAusgabeBefehl(), RohdatenBefehl(),   M5Befehl(),
      NivellementBefehl(), TheoBefehl(),       AbsteckBefehl(),    StationierBefehl(),
      PdfBefehl(),         UmrechenBefehl(),   WandelBefehl(),
  };
  Aufruf A;
  CLI::App App(Befehle[0].Beschreibung, "tavorena-stapel");
  Eindeutschen(App);
  App.set_version_flag("--version", "tavorena-stapel " TAVORENA_FASSUNG, "Fassung des Programms");
  Gemeinsames(App, A);
  const Konsolenbefehl* Gewählt = &Befehle[0];
  for (const Konsolenbefehl& B : Befehle) {
    if (&B == &Befehle[0]) {
      DateiAnmelden(App, B, A);
      EigenesAnmelden(App, B, A);
      continue;
    }
    CLI::App* Unter = App.add_subcommand(B.Name, B.Beschreibung)->group(B.Thema);
    Gemeinsames(*Unter, A);
    DateiAnmelden(*Unter, B, A);
    EigenesAnmelden(*Unter, B, A);
    Unter->callback([&Gewählt, &B] { Gewählt = &B; });
  }
  try {
    App.parse(Anzahl, Worte);
  } catch (const CLI::ParseError& Fehler) {
    if (Fehler.get_exit_code() == 0) return App.exit(Fehler, U.Ausgabe, U.Meldungen), Getan;
    U.Meldungen << "tavorena-stapel: " << Sichtbar(Deutsch(App, Fehler)) << " (mehr mit --help)\n";
    return FalscherAufruf;
  }
  // Where the coordinate file stands for the file, the only name is that of the output.
  if (Gewählt->OderKoordinaten && !A.Koordinaten.empty() && A.Ziel.empty()) std::swap(A.Datei, A.Ziel);
  return SitzungFühren(*Gewählt, A, U);
}

}  // namespace tavorena
