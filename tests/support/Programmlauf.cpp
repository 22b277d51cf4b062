#include "Programmlauf.h"

#ifdef _WIN32
#include <windows.h>
#else
#include <cstdlib>
#include <sys/wait.h>
#endif

namespace tavorena::test {

#ifdef _WIN32

int ProgrammLaufen(const std::string& Ordner, const std::string& Programm, const std::string& Worte) {
  SECURITY_ATTRIBUTES Vererbt{sizeof Vererbt, nullptr, TRUE};
  const auto Ziel = [&](const char* Name) {
    return CreateFileW(Weg(Ordner + Name).c_str(), GENERIC_WRITE, FILE_SHARE_READ | FILE_SHARE_WRITE,
                       &Vererbt, CREATE_ALWAYS, FILE_ATTRIBUTE_NORMAL, nullptr);
  };
  STARTUPINFOW Start{};
  Start.cb = sizeof Start;
  Start.dwFlags = STARTF_USESTDHANDLES;
  Start.hStdInput = INVALID_HANDLE_VALUE;
  Start.hStdOutput = Ziel("aus");
  Start.hStdError = Ziel("meldungen");
  const fs::path Datei = fs::absolute(Weg(Programm)).make_preferred();
  std::wstring Zeile = L'"' + Datei.native() + L"\" " + Weg(Worte).native();
  Umgebungsvariable("TAVORENA_ORDNER");
  Umgebungsvariable("APPDATA", ".");
  PROCESS_INFORMATION Lauf{};
  DWORD Status = static_cast<DWORD>(-1);
  if (CreateProcessW(Datei.c_str(), Zeile.data(), nullptr, nullptr, TRUE, 0, nullptr, Weg(Ordner).c_str(),
                     &Start, &Lauf) != 0) {
    WaitForSingleObject(Lauf.hProcess, INFINITE);
    GetExitCodeProcess(Lauf.hProcess, &Status);
    CloseHandle(Lauf.hProcess);
    CloseHandle(Lauf.hThread);
  }
  CloseHandle(Start.hStdOutput);
  CloseHandle(Start.hStdError);
  return static_cast<int>(Status);
}

#else

int ProgrammLaufen(const std::string& Ordner, const std::string& Programm, const std::string& Worte) {
  const std::string Zeile =
      "cd '" + Ordner + "' && env -u DISPLAY -u WAYLAND_DISPLAY -u QT_QPA_PLATFORM HOME=. XDG_CONFIG_HOME= " +
      "TAVORENA_ORDNER= " + Programm + " " + Worte + " >aus 2>meldungen";
  const int Status = std::system(Zeile.c_str());
  return WIFEXITED(Status) ? WEXITSTATUS(Status) : -1;
}

#endif

}  // namespace tavorena::test
