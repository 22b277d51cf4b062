#pragma once

#include <functional>
#include <memory>
#include <string>

#include <tavorena/records/Block.h>
#include <tavorena/records/Protokoll.h>
#include <tavorena/records/Stapelblock.h>

namespace tavorena {

/// A worksheet's hand on all records: the protocol of the job, a second target of its own, and its block of
/// the batch file. A replay records nothing in the batch file.
class Aufzeichnung {
 public:
  /// Where a row was written.
  struct Spur {
    bool Geschrieben = false;  ///< it reached a file, or there was none to reach
    int Griff = -1;            ///< its record in the batch file, or the place of the one struck; -1 none
  };

  Aufzeichnung() = default;
  Aufzeichnung(const Aufzeichnung&) = delete;
  Aufzeichnung& operator=(const Aufzeichnung&) = delete;
  ~Aufzeichnung();

  /// The worksheet opens: its second target is a file of its own beside DateinameProtokollTemp, which goes
  /// with it.
  void Öffnen(bool Nachlauf);

  /// What is to stand above the rows from now on; nothing is written before the first one.
  /// @return 0; -1 with a message if the batch block of the connection before could not be ended
  [[nodiscard]] int Beginnen(Verbindung Neue);

  /// From now on something else stands above the rows in the protocol; their records go on in the batch block
  /// that was begun, so those of Neue do not count.
  void Fortsetzen(Verbindung Neue);

  /// The batch block stands open: the next row needs no new head.
  [[nodiscard]] bool BlockOffen() const { return Sätze.Offen(); }

  /// Writes what stands above the next row into the protocol, before an entry of somebody else.
  /// @return 0; -1 if it can not be written
  [[nodiscard]] int KopfSchreiben() { return Protokollieren({}); }

  /// Writes a row below its connection into every file that is wanted. It counts as written when it reached
  /// one of them, or when none is wanted. The record of one that was struck before stands where that stood.
  /// @param[in] Zeile  its lines in the protocol
  /// @param[in] Satz   its record in the batch file; "": the head of its block says it all
  /// @return 0; -1: not written, with a message
  [[nodiscard]] int Zeile(const Block& Zeile, const std::string& Satz, Spur& Wo);

  /// Writes a calculation that is a block of its own: a case, or a list. What stands above it is Neue, whose
  /// records are all there are; without any there is no block.
  /// @param[in] Zeilen  its lines in the protocol
  /// @return as Zeile
  [[nodiscard]] int Ganzes(Verbindung Neue, const Block& Zeilen, Spur& Wo);

  /// Takes it back like a row; its block goes out of the batch file while nothing stands behind it.
  /// @return 0; 1: the block stays in the batch file
  [[nodiscard]] int GanzesStreichen(const Block& Gestrichen, Spur& Wo);

  /// Takes a connection back below which no row stands: its block goes out of the batch file, and Gestrichen
  /// stands in the protocol. @return 0; 1: the block stays in the batch file
  [[nodiscard]] int BlockStreichen(const Block& Gestrichen);

  /// Takes a written row back: its record goes out of the batch file, and Gestrichen, the same row with its
  /// mark, stands behind it in the protocol.
  /// @return 0; -1: the record can not be taken out, the row stays as it was
  [[nodiscard]] int Streichen(const Block& Gestrichen, Spur& Wo);

  /// What stands in its second target, below the head that belongs in front of it, as it is printed; "" where
  /// nothing was written or it can not be read.
  [[nodiscard]] std::string Drucktext() const;

  /// The connection is done: its batch block is ended. @return 0; -1 with a message
  [[nodiscard]] int Beenden();

 private:
  [[nodiscard]] int Protokollieren(const Block& Zeile);
  [[nodiscard]] int Eintragen(const Block& Zeile, Spur& Wo, const std::function<int(int& Griff)>& InStapel);
  void EigeneDateiEntfernen();

  std::shared_ptr<const Verbindung> Über;
  std::shared_ptr<const Verbindung> Erste;  // whose head belongs in front of the second target
  Protokoll Eigenes;
  std::string EigeneDatei;
  Stapelblock Sätze;  // its block of the batch file
  bool ImNachlauf = false;
  bool Gezählt = false;  // the marks of the connection
};

}  // namespace tavorena
