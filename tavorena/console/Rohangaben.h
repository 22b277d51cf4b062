#pragma once

#include <string>
#include <vector>

#include <tavorena/console/Sitzung.h>
#include <tavorena/rawdata/Rohdaten.h>

// What all commands on raw data share: the options that say how the file is to be understood.

namespace tavorena {

/// The options "--form", "--stationscode", "--stationswert", "--ihwert", "--lagen" and "--einheiten", and
/// behind them those of the command.
[[nodiscard]] std::vector<Angabe> MitRohangaben(const std::vector<Angabe>& Eigene);

/// Which of the words that an option takes was given, the first one where it was not.
/// @return false with a message: none of them
[[nodiscard]] bool WortLesen(const Aufruf& A, const char* Option, const std::vector<std::string>& Worte,
                             std::size_t& Stelle);

/// How the call wants a file to be understood. @return false with a message: an option says nothing that
/// there is
[[nodiscard]] bool RohwahlLesen(const Aufruf& A, Rohdatenwahl& Wahl);

/// Reads the file of the call as it is to be understood. @return false with a message
[[nodiscard]] bool RohdatenHolen(const Aufruf& A, Rohdatenwahl& Wahl, Rohdaten& Roh);

}  // namespace tavorena
