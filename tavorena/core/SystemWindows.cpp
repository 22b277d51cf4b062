#include <cstdio>
#include <fcntl.h>
#include <io.h>
#include <memory>
#include <shlobj.h>
#include <windows.h>

#include <tavorena/core/Breittext.h>
#include <tavorena/core/Datei.h>
#include <tavorena/core/System.h>

namespace tavorena {
namespace {

constexpr std::size_t Längster = 32768;  // text that the system gives, with its end
UINT Bildschirmseite = 0;                // code page of the screen before; 0: nothing to put back

}  // namespace

std::wstring Breittext(std::string_view Text) {
  const std::string Lesbar = IstUtf8(Text) ? std::string(Text) : AusWindows1252(Text);
  const auto Länge = static_cast<int>(Lesbar.size());
  std::wstring Breit(Lesbar.size(), L'\0');  // never more units than bytes
  const int Einheiten = MultiByteToWideChar(CP_UTF8, 0, Lesbar.data(), Länge, Breit.data(), Länge);
  Breit.resize(static_cast<std::size_t>(Einheiten));
  return Breit;
}

std::string AusBreittext(std::wstring_view Text) {
  const auto Länge = static_cast<int>(Text.size());
  std::string Schmal(Text.size() * 3, '\0');
  const int Bytes = WideCharToMultiByte(CP_UTF8, 0, Text.data(), Länge, Schmal.data(),
                                        static_cast<int>(Schmal.size()), nullptr, nullptr);
  Schmal.resize(static_cast<std::size_t>(Bytes));
  return Schmal;
}

std::string Umgebungswert(const std::string& Name) {
  std::wstring Wert(Längster, L'\0');
  Wert.resize(GetEnvironmentVariableW(Breittext(Name).c_str(), Wert.data(), static_cast<DWORD>(Wert.size())));
  return AusBreittext(Wert);
}

std::string Einstellungsordner() {
  std::string Ordner = Umgebungswert("APPDATA");
  wchar_t Eigener[MAX_PATH] = {};
  if (Ordner.empty() &&
      SHGetFolderPathW(nullptr, CSIDL_APPDATA, nullptr, SHGFP_TYPE_CURRENT, Eigener) == S_OK)
    Ordner = AusBreittext(Eigener);
  return Ordner + "\\tavorena";
}

std::string Programmordner() {
  std::wstring Datei(Längster, L'\0');
  Datei.resize(GetModuleFileNameW(nullptr, Datei.data(), static_cast<DWORD>(Datei.size())));
  return AusBreittext(Datei.substr(0, Datei.find_last_of(L'\\')));
}

std::string Anschlußname(int Nummer) { return "COM" + std::to_string(Nummer); }

bool SchriftAnmelden(const std::string& Datei) {
  const std::wstring Name = Breittext(Programmordner() + "\\" + Datei);
  return AddFontResourceExW(Name.c_str(), FR_PRIVATE, nullptr) > 0;
}

std::tm Ortszeit(std::time_t Sekunden) {
  std::tm Zeit{};
  localtime_s(&Zeit, &Sekunden);
  return Zeit;
}

// main gets them in a code page that most names do not fit in.
std::vector<std::string> Programmworte(int Anzahl, const char* const* Worte) {
  int Zahl = 0;
  const std::unique_ptr<wchar_t*, decltype(&LocalFree)> Breite(CommandLineToArgvW(GetCommandLineW(), &Zahl),
                                                               LocalFree);
  if (!Breite) return {Worte, Worte + Anzahl};
  std::vector<std::string> Alle;
  for (int i = 0; i < Zahl; ++i) Alle.push_back(AusBreittext(Breite.get()[i]));
  return Alle;
}

Ausgabebetrieb::Ausgabebetrieb() {
  Bildschirmseite = GetConsoleOutputCP();
  SetConsoleOutputCP(CP_UTF8);
  for (std::FILE* Strom : {stdout, stderr}) _setmode(_fileno(Strom), _O_BINARY);
}

Ausgabebetrieb::~Ausgabebetrieb() {
  if (Bildschirmseite != 0) SetConsoleOutputCP(Bildschirmseite);
}

}  // namespace tavorena
