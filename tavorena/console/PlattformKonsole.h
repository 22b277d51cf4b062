#pragma once

#include <iosfwd>
#include <set>
#include <string>

#include <tavorena/console/Sitzung.h>
#include <tavorena/core/Ports.h>

namespace tavorena {

/// The program without a screen: messages go to a stream, a line each that begins with the file it is about,
/// and a question that the command line did not answer ends the run. Nothing waits for a key.
class PlattformKonsole final : public Rückfragen,
                               public Anzeige,
                               public Umgebung,
                               public Leitungen,
                               public Druckwerk {
 public:
  /// A message that names a file of the call is about it and tells a failure; one that can not be written
  /// ends the run.
  PlattformKonsole(const Aufruf& Ruf, std::ostream& Meldungsziel, std::string Ordner)
      : A(Ruf), Ziel(Meldungsziel), Programm(std::move(Ordner)) {}

  int Meldung(const std::string& Text, Knöpfe Art, const std::string& Titel, int Vorgabe) override;
  void FormularZeigen(Formular& Form, bool Modal) override;
  std::string ProgrammOrdner() override { return Programm; }
  std::unique_ptr<Leitung> LeitungÖffnen(const std::string& Gerät, const std::string& Einstellungen) override;

  /// The pages become the file of the proposed name, which the caller had from the command line.
  int Drucken(const Druckseiten& Seiten, const std::string& Titel, const std::string& Vorschlag) override;

  /// The file that is at work from now on; "" none.
  void Arbeitet(const std::string& Datei) { AnDatei = Datei; }
  /// A message, on one line behind its file; what was said already is not said again.
  void Melden(const std::string& Text);
  /// Something failed, or a question met no answer.
  [[nodiscard]] bool Mißlungen() const { return Fehler; }

 private:
  void Ohne(const std::string& Frage);
  void Enden();

  const Aufruf& A;
  std::ostream& Ziel;
  std::string Programm;
  std::string AnDatei;
  std::set<std::string> Gesagt;
  bool Fehler = false;
  bool Still = false;  // the run is ending; what follows from that is not told
};

}  // namespace tavorena
