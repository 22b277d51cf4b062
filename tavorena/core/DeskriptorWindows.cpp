#include <algorithm>
#include <cerrno>
#include <iterator>
#include <optional>
#include <random>
#include <windows.h>

#include <tavorena/core/Breittext.h>
#include <tavorena/core/Deskriptor.h>

namespace fs = std::filesystem;

namespace tavorena {
namespace {

constexpr DWORD Geteilt = FILE_SHARE_READ | FILE_SHARE_WRITE | FILE_SHARE_DELETE;  // as files are elsewhere
constexpr ULONGLONG Moment = 100;                                                  // [ms]
constexpr DWORD Eigenschaften =
    FILE_ATTRIBUTE_READONLY | FILE_ATTRIBUTE_DIRECTORY | FILE_ATTRIBUTE_REPARSE_POINT;

constexpr std::size_t Zufallszeichen = 6;
constexpr int Versuche = 100;  // counted, not timed: on a busy machine the other one has his pauses too

constexpr struct {
  DWORD Windows;
  int Posix;
} Fehlernummern[] = {{ERROR_FILE_NOT_FOUND, ENOENT},
                     {ERROR_PATH_NOT_FOUND, ENOENT},
                     {ERROR_INVALID_DRIVE, ENOENT},
                     {ERROR_NOT_READY, ENOENT},
                     {ERROR_BAD_NETPATH, ENOENT},
                     {ERROR_BAD_NET_NAME, ENOENT},
                     {ERROR_BAD_PATHNAME, ENOENT},
                     {ERROR_DIRECTORY, ENOTDIR},
                     {ERROR_ACCESS_DENIED, EACCES},
                     {ERROR_DELETE_PENDING, EACCES},
                     {ERROR_SHARING_VIOLATION, EBUSY},
                     {ERROR_LOCK_VIOLATION, EBUSY},
                     {ERROR_USER_MAPPED_FILE, EBUSY},
                     {ERROR_UNABLE_TO_REMOVE_REPLACED, EBUSY},
                     {ERROR_UNABLE_TO_MOVE_REPLACEMENT, EBUSY},
                     {ERROR_UNABLE_TO_MOVE_REPLACEMENT_2, EIO},
                     {ERROR_WRITE_PROTECT, EROFS},
                     {ERROR_HANDLE_DISK_FULL, ENOSPC},
                     {ERROR_DISK_FULL, ENOSPC},
                     {ERROR_FILE_TOO_LARGE, EFBIG},
                     {ERROR_FILENAME_EXCED_RANGE, ENAMETOOLONG},
                     {ERROR_INVALID_NAME, EILSEQ},
                     {ERROR_CANT_RESOLVE_FILENAME, ELOOP},
                     {ERROR_FILE_EXISTS, EEXIST},
                     {ERROR_ALREADY_EXISTS, EEXIST}};

// errno after a call of the system; one that it has no number for becomes negative.
bool Gelungen(BOOL Ergebnis) {
  if (Ergebnis != FALSE) return true;
  const DWORD Fehler = GetLastError();
  const auto* Zeile = std::find_if(std::begin(Fehlernummern), std::end(Fehlernummern),
                                   [Fehler](const auto& F) { return F.Windows == Fehler; });
  errno = Zeile != std::end(Fehlernummern) ? Zeile->Posix : -static_cast<int>(Fehler);
  return false;
}

// The whole name as the system takes it, also where it is longer than its old limit.
// @return nothing for a device (CON, COM1, a pipe) and for a part of a file behind ":"
std::optional<std::wstring> Vollname(const fs::path& Pfad) {
  constexpr std::wstring_view Vorsatz = L"\\\\?\\";
  constexpr std::size_t Grenze = 240;  // folders end earlier than files
  std::wstring Name = Pfad.native();
  if (!Name.starts_with(Vorsatz)) {
    std::wstring Ganz(32768, L'\0');
    Ganz.resize(GetFullPathNameW(Name.c_str(), static_cast<DWORD>(Ganz.size()), Ganz.data(), nullptr));
    if (Ganz.empty() || Ganz.starts_with(L"\\\\.\\")) {
      errno = Ganz.empty() ? ENOENT : ENXIO;
      return {};
    }
    if (Ganz.find(L':', 2) != std::wstring::npos) {
      errno = EILSEQ;
      return {};
    }
    const bool Netz = Ganz.starts_with(L"\\\\");
    if (Ganz.size() < Grenze) return Ganz;
    Name = std::wstring(Vorsatz) + (Netz ? L"UNC" + Ganz.substr(1) : Ganz);
  }
  return Name;
}

// The last of the six characters behind a name that the old content has while Umbenennen takes its two steps.
constexpr wchar_t Altzeichen = L'~';

// The old content where it stands beside the name together with the next one; empty: it does not.
std::wstring Abgelegtes(const std::wstring& Name) {
  const std::size_t Ordner = Name.find_last_of(L'\\') + 1;
  const std::size_t Länge = Name.size() - Ordner + Nachfolger.size() + Zufallszeichen;
  WIN32_FIND_DATAW Fund{};
  HANDLE Suche = FindFirstFileW((Name + Breittext(Nachfolger) + L"*").c_str(), &Fund);
  if (Suche == KeinGriff) return {};
  std::wstring Altes;
  bool Neues = false;
  do {
    const std::wstring_view Eintrag = Fund.cFileName;
    if (Eintrag.size() != Länge) continue;
    if (Eintrag.back() == Altzeichen)
      Altes = Name.substr(0, Ordner).append(Eintrag);
    else
      Neues = true;
  } while (FindNextFileW(Suche, &Fund) != FALSE);
  FindClose(Suche);
  return Neues ? Altes : L"";
}

Deskriptor Öffnen(const fs::path& Pfad, DWORD Rechte, DWORD Wie = OPEN_EXISTING, DWORD Zusatz = 0) {
  const auto Name = Vollname(Pfad);
  if (!Name) return Deskriptor();
  const auto Versuch = [&](DWORD Art) {
    // The flag lets folders be opened, and told from files then.
    Deskriptor K(CreateFileW(Name->c_str(), Rechte, Geteilt, nullptr, Art,
                             FILE_ATTRIBUTE_NORMAL | FILE_FLAG_BACKUP_SEMANTICS | Zusatz, nullptr));
    static_cast<void>(Gelungen(K ? TRUE : FALSE));
    return K;
  };
  if (Wie == CREATE_NEW) return Versuch(Wie);
  for (int i = 0;; ++i) {
    Deskriptor K = Versuch(OPEN_EXISTING);
    if (K || errno != ENOENT) return K;
    const std::wstring Altes = Abgelegtes(*Name);
    if (Altes.empty()) return Versuch(Wie);
    if (i == Versuche) {  // who was replacing it was ended: back with it
      MoveFileExW(Altes.c_str(), Name->c_str(), MOVEFILE_WRITE_THROUGH);
      return Versuch(Wie);
    }
    Sleep(1);
  }
}

std::uint64_t Zusammen(DWORD Oben, DWORD Unten) { return std::uint64_t{Oben} << 32U | Unten; }

// [ns] since 1970 out of [100 ns] since 1601
std::int64_t Zeit(const FILETIME& T) {
  return static_cast<std::int64_t>((Zusammen(T.dwHighDateTime, T.dwLowDateTime) - 116'444'736'000'000'000U) *
                                   100U);
}

// Tries again for a moment: a program that looks for viruses has every new file open.
template <typename Tun>
bool Beharrlich(const Tun& Versuch) {
  const ULONGLONG Ende = GetTickCount64() + Moment;
  for (;;) {
    if (Gelungen(Versuch())) return true;
    if ((errno != EBUSY && errno != EACCES) || GetTickCount64() > Ende) return false;
    Sleep(1);
  }
}

OVERLAPPED AnStelle(std::uint64_t Stelle) {
  OVERLAPPED O{};
  O.Offset = static_cast<DWORD>(Stelle);
  O.OffsetHigh = static_cast<DWORD>(Stelle >> 32U);
  return O;
}

// Far behind every file: what is held there keeps nobody from reading.
OVERLAPPED Sperrstelle() { return AnStelle(std::uint64_t{1} << 62U); }

bool Schreiben(const Deskriptor& K, std::string_view Inhalt, OVERLAPPED* Stelle) {
  while (!Inhalt.empty()) {
    const auto Stück = static_cast<DWORD>(std::min(Inhalt.size(), std::size_t{1} << 24U));
    DWORD n = 0;
    if (!Gelungen(WriteFile(K.Nummer(), Inhalt.data(), Stück, &n, Stelle))) return false;
    Inhalt.remove_prefix(n);
  }
  return true;
}

bool Dieselbe(const Dateilage& A, const Dateilage& B) {
  return A.Blick.Gerät == B.Blick.Gerät && A.Blick.Nummer == B.Blick.Nummer;
}

fs::path MitZufall(std::wstring Name) {
  static std::random_device Zufall;
  constexpr std::wstring_view Vorrat = L"abcdefghijklmnopqrstuvwxyz0123456789";
  for (std::size_t i = 0; i < Zufallszeichen; ++i) Name += Vorrat[Zufall() % Vorrat.size()];
  return Name;
}

// With links gone through as far as there is something.
fs::path Ort(const fs::path& Pfad) {
  if (const fs::path Ende = EndeDerVerweise(Pfad); !Ende.empty()) return Ende;
  const fs::path Oben = Pfad.parent_path();
  return Oben.empty() || Oben == Pfad ? Pfad : Ort(Oben) / Pfad.filename();
}

}  // namespace

fs::path Systempfad(std::string_view Name) { return fs::path(Breittext(Name)).make_preferred(); }

Dateiblick DateiAnsehen(std::string_view Name) {
  Dateilage Lage;
  return Ansehen(Systempfad(Name), Lage) ? Lage.Blick : Dateiblick{};
}

Deskriptor::~Deskriptor() {
  if (Griff != KeinGriff) CloseHandle(Griff);
}

bool Ansehen(const Deskriptor& K, Dateilage& Lage) {
  if (!K) return false;
  Lage = {};
  Lage.Art = Dateiart::Andere;
  if (GetFileType(K.Nummer()) != FILE_TYPE_DISK) return true;
  BY_HANDLE_FILE_INFORMATION I{};
  if (!Gelungen(GetFileInformationByHandle(K.Nummer(), &I))) return false;
  Lage.Blick = {{Zusammen(I.nFileSizeHigh, I.nFileSizeLow), Zeit(I.ftLastWriteTime)},
                I.dwVolumeSerialNumber,
                Zusammen(I.nFileIndexHigh, I.nFileIndexLow),
                I.dwFileAttributes & Eigenschaften};
  Lage.Art = (I.dwFileAttributes & FILE_ATTRIBUTE_DIRECTORY) != 0 ? Dateiart::Ordner : Dateiart::Gewöhnlich;
  Lage.Namen = I.nNumberOfLinks;
  return true;
}

bool Ansehen(const fs::path& Pfad, Dateilage& Lage) {
  return Ansehen(Öffnen(Pfad, FILE_READ_ATTRIBUTES), Lage);
}

bool AnsehenOhneVerweis(const fs::path& Pfad, Dateilage& Lage) {
  if (!Ansehen(Öffnen(Pfad, FILE_READ_ATTRIBUTES, OPEN_EXISTING, FILE_FLAG_OPEN_REPARSE_POINT), Lage))
    return false;
  if ((Lage.Blick.Rechte & FILE_ATTRIBUTE_REPARSE_POINT) != 0) Lage.Art = Dateiart::Andere;
  return true;
}

bool VerweisInsLeere(const fs::path& Pfad) {
  Dateilage Selbst, Ende;
  return AnsehenOhneVerweis(Pfad, Selbst) && (Selbst.Blick.Rechte & FILE_ATTRIBUTE_REPARSE_POINT) != 0 &&
         !Ansehen(Pfad, Ende) && (errno == ENOENT || errno == ELOOP);
}

fs::path EndeDerVerweise(const fs::path& Pfad) {
  const Deskriptor K = Öffnen(Pfad, FILE_READ_ATTRIBUTES);
  if (!K) return {};
  std::wstring Ende(32768, L'\0');
  const DWORD Länge = GetFinalPathNameByHandleW(K.Nummer(), Ende.data(), static_cast<DWORD>(Ende.size()), 0);
  Dateilage Lage;
  if (Länge == 0)  // some file systems do not know it
    return AnsehenOhneVerweis(Pfad, Lage) && Lage.Art != Dateiart::Andere ? Pfad : fs::path();
  Ende.resize(Länge);
  return Ende;
}

bool SelberOrt(const fs::path& A, const fs::path& B) {
  Dateilage LageA, LageB;
  if (Ansehen(A, LageA) && Ansehen(B, LageB) && LageA.Blick.Nummer != 0)  // some file servers know no number
    return Dieselbe(LageA, LageB);
  std::error_code Fehler;
  const std::wstring OrtA = Ort(fs::absolute(A, Fehler)).native(),
                     OrtB = Ort(fs::absolute(B, Fehler)).native();
  return CompareStringOrdinal(OrtA.data(), static_cast<int>(OrtA.size()), OrtB.data(),
                              static_cast<int>(OrtB.size()), TRUE) == CSTR_EQUAL;
}

bool NochDerselbe(const Dateilage& Offen, const fs::path& Pfad) {
  Dateilage Jetzt;
  return Ansehen(Pfad, Jetzt) && Dieselbe(Jetzt, Offen);
}

bool Beschreibbar(const fs::path& Pfad, const Dateilage& Lage) {
  if ((Lage.Blick.Rechte & FILE_ATTRIBUTE_READONLY) != 0) return false;
  return Öffnen(Pfad, GENERIC_WRITE) || errno == EBUSY;  // that has its own words, from where it is replaced
}

std::string NameVon(const fs::path& Pfad) {
  std::wstring Name = Pfad.native();
  if (Name.starts_with(L"\\\\?\\UNC\\"))
    Name.erase(2, 6);
  else if (Name.starts_with(L"\\\\?\\"))
    Name.erase(0, 4);
  return AusBreittext(Name);
}

std::vector<fs::path> EinträgeIm(const fs::path& Ordner) {
  std::vector<fs::path> Einträge;
  WIN32_FIND_DATAW Fund{};
  const auto Name = Vollname(Ordner / L"*");
  HANDLE Suche = Name ? FindFirstFileW(Name->c_str(), &Fund) : KeinGriff;
  if (Suche == KeinGriff) return Einträge;
  do {
    const std::wstring_view Eintrag = Fund.cFileName;
    if (Eintrag != L"." && Eintrag != L"..") Einträge.push_back(Ordner / Eintrag);
  } while (FindNextFileW(Suche, &Fund) != FALSE);
  FindClose(Suche);
  return Einträge;
}

bool OrdnerMachen(const fs::path& Ordner) {
  Dateilage Lage;
  if (Ansehen(Ordner, Lage)) return Lage.Art == Dateiart::Ordner;
  const fs::path Oben = Ordner.parent_path();
  if (Ordner.filename().empty()) return Oben != Ordner && OrdnerMachen(Oben);  // ends in its separator
  if (!Oben.empty() && !OrdnerMachen(Oben)) return false;
  const auto Name = Vollname(Ordner);
  return Name && (Gelungen(CreateDirectoryW(Name->c_str(), nullptr)) || errno == EEXIST);
}

Deskriptor RegulärÖffnen(const fs::path& Pfad, Zugriff Art, Dateilage& Lage, std::string& Grund) {
  const DWORD Rechte = Art == Zugriff::Lesen     ? GENERIC_READ
                       : Art == Zugriff::Anfügen ? GENERIC_READ | GENERIC_WRITE
                                                 : GENERIC_WRITE;
  Deskriptor K = Öffnen(Pfad, Rechte, Art == Zugriff::Anfügen ? OPEN_ALWAYS : OPEN_EXISTING);
  if (K && Ansehen(K, Lage)) {
    Grund = Artwort(Lage.Art);
    if (Grund.empty()) return K;
    errno = ENXIO;
    return Deskriptor();
  }
  const int Fehler = errno;
  const bool Schreibschutz = Fehler == EACCES && Art != Zugriff::Lesen && Ansehen(Pfad, Lage) &&
                             (Lage.Blick.Rechte & FILE_ATTRIBUTE_READONLY) != 0;
  errno = Schreibschutz ? EROFS : Fehler;
  Grund = Fehlerwort(errno);
  return Deskriptor();
}

// What a folder of the user holds is his by the rights of the folder.
Deskriptor EigeneAnlegen(fs::path& Pfad) {
  for (int i = 0; i < Versuche; ++i) {
    const fs::path Neu = MitZufall(Pfad.native());
    Deskriptor K = Öffnen(Neu, GENERIC_READ | GENERIC_WRITE, CREATE_NEW);
    if (K) Pfad = Neu;
    if (K || errno != EEXIST) return K;
  }
  return Deskriptor();
}

std::int64_t Stücklesen(const Deskriptor& K, char* Platz, std::size_t Größe) {
  DWORD n = 0;
  const auto Stück = static_cast<DWORD>(std::min(Größe, std::size_t{1} << 24U));
  return Gelungen(ReadFile(K.Nummer(), Platz, Stück, &n, nullptr)) ? std::int64_t{n} : -1;
}

bool Ausschreiben(const Deskriptor& K, std::string_view Inhalt) { return Schreiben(K, Inhalt, nullptr); }

bool Anfügen(const Deskriptor& K, std::string_view Inhalt) {
  OVERLAPPED Ende = AnStelle(~std::uint64_t{0});  // the end, whatever others wrote
  if (!Schreiben(K, Inhalt, &Ende)) return false;
  // The system would set the time at some later look, and the file would seem to be written by somebody.
  FILETIME Jetzt{};
  GetSystemTimePreciseAsFileTime(&Jetzt);
  return Inhalt.empty() || Gelungen(SetFileTime(K.Nummer(), nullptr, nullptr, &Jetzt));
}

bool LängeSetzen(const Deskriptor& K, std::uintmax_t Länge) {
  FILE_END_OF_FILE_INFO Ende{};
  Ende.EndOfFile.QuadPart = static_cast<LONGLONG>(Länge);
  return Gelungen(SetFileInformationByHandle(K.Nummer(), FileEndOfFileInfo, &Ende, sizeof Ende));
}

bool PlatzNehmen(const Deskriptor& K, std::uintmax_t /*Ab*/, std::uintmax_t Bis) {
  return LängeSetzen(K, Bis);  // takes the space of an ordinary file with its length
}

bool AufPlatte(const Deskriptor& K) { return Gelungen(FlushFileBuffers(K.Nummer())); }

bool RechteGeben(const Deskriptor& /*K*/, const Dateilage* /*Alt*/) { return true; }  // Umbenennen does

// The new file gets the rights and attributes of the old one, which steps aside before it goes: it may be
// open elsewhere.
bool Umbenennen(const fs::path& Neu, const fs::path& Ziel, bool War) {
  std::wstring Beiseite = Neu.native();
  Beiseite.back() = Altzeichen;  // the rest is nobody else's
  const auto Von = Vollname(Neu), Nach = Vollname(Ziel), Weg = Vollname(Beiseite);
  if (!Von || !Nach || !Weg) return false;
  constexpr DWORD Flaggen = REPLACEFILE_IGNORE_MERGE_ERRORS | REPLACEFILE_IGNORE_ACL_ERRORS;
  DWORD Fehler = ERROR_FILE_NOT_FOUND;
  const auto Tauschen = [&] {
    const BOOL Gut = ReplaceFileW(Nach->c_str(), Von->c_str(), Weg->c_str(), Flaggen, nullptr, nullptr);
    Fehler = Gut != FALSE ? ERROR_SUCCESS : GetLastError();
    return Gut;
  };
  if (War && Beharrlich(Tauschen)) {
    DeleteFileW(Weg->c_str());
    return true;
  }
  if (Fehler == ERROR_UNABLE_TO_MOVE_REPLACEMENT_2)  // the old one stands aside
    MoveFileExW(Weg->c_str(), Nach->c_str(), MOVEFILE_WRITE_THROUGH);
  // Nothing to replace any more, or a file system without that.
  const bool Einfach = Fehler == ERROR_FILE_NOT_FOUND || Fehler == ERROR_NOT_SUPPORTED ||
                       Fehler == ERROR_INVALID_FUNCTION || Fehler == ERROR_CALL_NOT_IMPLEMENTED;
  return Einfach && Beharrlich([&] {
           return MoveFileExW(Von->c_str(), Nach->c_str(),
                              MOVEFILE_REPLACE_EXISTING | MOVEFILE_WRITE_THROUGH);
         });
}

void OrdnerAufPlatte(const fs::path& /*Ordner*/) {}  // the file system keeps its names in its own log

bool Entfernen(const fs::path& Pfad) {
  const auto Name = Vollname(Pfad);
  return Name && Gelungen(DeleteFileW(Name->c_str()));
}

void Festhalten(const Deskriptor& K) {
  OVERLAPPED Stelle = Sperrstelle();
  constexpr DWORD Sofort = LOCKFILE_EXCLUSIVE_LOCK | LOCKFILE_FAIL_IMMEDIATELY;
  for (int i = 0;
       i < Versuche && K && !Gelungen(LockFileEx(K.Nummer(), Sofort, 0, 1, 0, &Stelle)) && errno == EBUSY;
       ++i)
    Sleep(1);
}

void Loslassen(const Deskriptor& K) {
  OVERLAPPED Stelle = Sperrstelle();
  UnlockFileEx(K.Nummer(), 0, 1, 0, &Stelle);
}

bool GerätNehmen(Systemgriff /*Gerät*/) { return true; }  // a device opens for one program alone

}  // namespace tavorena
