#pragma once

#include <memory>
#include <string>
#include <string_view>
#include <vector>

#include <tavorena/core/Ports.h>
#include <tavorena/rawdata/Antwortpuffer.h>
#include <tavorena/rawdata/Zeilenreduktion.h>

namespace tavorena {

/// A line of the instrument that stands in the raw-data file.
struct Antwortzeile {
  std::string Text;  ///< as it came or, where its Befund says so, reduced; without line end
  Reduktionsbefund Befund = Reduktionsbefund::Unverändert;
  bool Überlang = false;  ///< 64 KB came without a line feed
};

/// What is done with each line before it goes into the file.
struct Messablage {
  std::string Datei;         ///< raw-data file; is extended
  int Reduktion = 0;         ///< mode of RohdatenZeileReduzieren
  double Parameter = 0.087;  ///< [m]
};

/// The instrument at the other end of a serial line. Nothing that it sends is lost: each line is written,
/// and brought to the disk, before it is given out; what is no whole line follows at the end of the
/// connection.
class Messleitung {
 public:
  Messablage Ablage;

  /// Opens the device. @param[in] Einstellungen  "9600,N,8,1"
  /// @return 0; -1 after the run-time message with the device
  [[nodiscard]] int Verbinden(const std::string& Gerät, const std::string& Einstellungen);
  [[nodiscard]] bool Verbunden() const { return Draht != nullptr; }
  /// Closes the line; what came without a line end is written as a line.
  void Trennen();
  /// Asks the instrument for a measurement. @return 0; -1 as Holen
  [[nodiscard]] int Anfordern();
  /// Takes what came since, never waits. @param[out] Neue  the lines that are in the file now, appended
  /// @return 0; -1 when the device is lost: the line is closed, after the run-time message
  [[nodiscard]] int Holen(std::vector<Antwortzeile>& Neue);
  /// A line from elsewhere, as if the instrument had sent it.
  void Einspeisen(std::string_view Zeile, std::vector<Antwortzeile>& Neue);
  /// Tries again to write what reached no file. @return 0; -1 after a message
  int Nachholen(std::vector<Antwortzeile>& Neue);
  /// Lines that reached no file yet.
  [[nodiscard]] const std::vector<Antwortzeile>& Ungesichert() const { return Offene; }
  void Verwerfen() { Offene.clear(); }

 private:
  void Aufnehmen(std::string_view Bytes);
  void ZeileAufnehmen(std::string Antwort);
  int Verlust();

  std::unique_ptr<Leitung> Draht;
  std::string Name;  // of the device
  Antwortpuffer Puffer;
  std::vector<Antwortzeile> Offene;
};

}  // namespace tavorena
