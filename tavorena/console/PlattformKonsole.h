#pragma once

#include <iosfwd>
#include <string>

#include <tavorena/core/Ports.h>

namespace tavorena {

/// The program without a screen: messages go to a stream, and a question that the command line did not
/// answer ends the run. Nothing waits for a key.
class PlattformKonsole final : public Rückfragen, public Anzeige, public Umgebung {
 public:
  PlattformKonsole(std::ostream& Meldungsziel, std::string Ordner)
      : Ziel(Meldungsziel), Programm(std::move(Ordner)) {}

  int Meldung(const std::string& Text, Knöpfe Art, const std::string& Titel, int Vorgabe) override;
  void FormularZeigen(Formular& Form, bool Modal) override;
  std::string ProgrammOrdner() override { return Programm; }

  /// A question met no answer.
  [[nodiscard]] bool Unbeantwortet() const { return FrageOffen; }

 private:
  void Ohne(const std::string& Frage);

  std::ostream& Ziel;
  std::string Programm;
  bool FrageOffen = false;
};

}  // namespace tavorena
