// Files as only Windows has them: names of devices, drives, files that somebody holds; and a second program.
#include "Testhilfe.h"

#include <windows.h>

namespace tavorena::test {
namespace {

// A file that holds "alt", alone in its folder.
class DateiWindows : public ::testing::Test {
 protected:
  DateiWindows() { Schreibe(Name, "alt"); }
  const Testordner Ordner;
  const std::string Name = Ordner.Pfad("a.kor");
};

// What reading, replacing and extending a file say, where none of them goes well.
std::string Gruende(const std::string& Ziel) {
  std::string Text, Alle, Grund;
  const auto Sagt = [&](int Ergebnis) { Alle += Ergebnis == -1 ? Grund + ";" : "gut;"; };
  Sagt(DateiLesen(Ziel, Text, &Grund));
  Sagt(DateiErsetzen(Ziel, "neu", &Grund));
  Sagt(TextAnhängen(Ziel, "+", &Grund));
  return Alle;
}

TEST_F(DateiWindows, GeraeteWerdenNieGeoeffnet) {
  for (const char* Geraet : {"CON", "nul", "COM1", "LPT1", "\\\\.\\pipe\\tavorena"}) {
    EXPECT_EQ(Gruende(Geraet), "keine gewöhnliche Datei;keine gewöhnliche Datei;keine gewöhnliche Datei;")
        << Geraet;
  }
}

TEST_F(DateiWindows, NamenAllerArt) {
  std::string Tief = Ordner.Pfad("");
  ASSERT_EQ(Tief[1], ':');
  for (int i = 0; i < 3; ++i) {  // beyond the old limit of a whole name
    Tief += std::string(100, 'l') + (i % 2 == 0 ? "/" : "\\");
    ASSERT_EQ(CreateDirectoryW((L"\\\\?\\" + fs::path(Weg(Tief)).make_preferred().native()).c_str(), nullptr),
              TRUE);
  }
  for (const std::string& D : {Ordner.Pfad("Straße 😀.kor"), Tief + "Meßlinie ☃.kor"}) {
    std::string Grund;
    for (const char* Text : {"a", "b"}) EXPECT_EQ(DateiErsetzen(D, Text, &Grund), 0) << D << ": " << Grund;
    EXPECT_EQ(Gruende(D), "gut;gut;gut;") << D;
    EXPECT_EQ(DateiLesen(D, Grund), 0);
    EXPECT_EQ(Grund, "neu+");
    EXPECT_EQ(DateiLöschen(D), 0);
  }
}

// Whoever has the file open and lets nobody in keeps it as it is.
TEST_F(DateiWindows, GehaltenesBleibt) {
  const HANDLE Griff = CreateFileW(Weg(Name).c_str(), GENERIC_READ | GENERIC_WRITE, 0, nullptr, OPEN_EXISTING,
                                   FILE_ATTRIBUTE_NORMAL, nullptr);
  ASSERT_NE(Griff, INVALID_HANDLE_VALUE);
  const std::string Benutzt = "von einem anderen Programm benutzt;";
  EXPECT_EQ(Gruende(Name), Benutzt + Benutzt + Benutzt);
  CloseHandle(Griff);
  EXPECT_EQ(Inhalt(Name), "alt");
  EXPECT_EQ(std::distance(fs::directory_iterator(Weg(Ordner.Pfad(""))), {}), 1);  // no remains
}

// This program once more, with one of the tests that are for it alone.
HANDLE Zweites(const char* Test, const std::string& Datei) {
  Umgebungsvariable("TAVORENA_DATEI", Datei.c_str());
  std::wstring Zeile(MAX_PATH, L'\0');
  Zeile.resize(GetModuleFileNameW(nullptr, Zeile.data(), MAX_PATH));
  Zeile = L'"' + Zeile +
          L"\" --gtest_brief=1 --gtest_also_run_disabled_tests --gtest_filter=Zweites.DISABLED_" +
          Weg(Test).native();
  STARTUPINFOW Start{};
  Start.cb = sizeof Start;
  PROCESS_INFORMATION Lauf{};
  EXPECT_NE(
      CreateProcessW(nullptr, Zeile.data(), nullptr, nullptr, FALSE, 0, nullptr, nullptr, &Start, &Lauf), 0);
  CloseHandle(Lauf.hThread);
  return Lauf.hProcess;
}

DWORD Warten(HANDLE Lauf) {
  DWORD Status = STILL_ACTIVE;
  WaitForSingleObject(Lauf, INFINITE);
  GetExitCodeProcess(Lauf, &Status);
  CloseHandle(Lauf);
  return Status;
}

bool Ganz(const std::string& Text) {
  return Text.size() == 300'000 && Text.find_first_not_of(Text.front()) == std::string::npos;
}

// Replaces the file again and again.
void Ersetzen(const std::string& Name, int Male) {
  for (int i = 0; i < Male; ++i) {
    std::string Ist, Grund;
    ASSERT_EQ(DateiLesen(Name, Ist, &Grund), 0) << Grund << " at " << i;
    ASSERT_TRUE(Ganz(Ist)) << Ist.size();
    ASSERT_EQ(DateiErsetzen(Name, std::string(300'000, i % 2 == 0 ? 'a' : 'b'), &Grund), 0)
        << Grund << " at " << i;
  }
}

// Goes on from what was read, and only while it stands.
void Weiterschreiben(const std::string& Name) {
  for (int i = 0, k = 0; i < 25 && k < 20'000; ++k) {
    const Dateistand Eben = DateistandVon(Name);
    std::string Ist;
    if (DateiLesen(Name, Ist) == 0 && DateiErsetzen(Name, Ist + "a", nullptr, &Eben) == 0) ++i;
  }
}

TEST(Zweites, DISABLED_Ersetzt) { Ersetzen(std::getenv("TAVORENA_DATEI"), 30); }
TEST(Zweites, DISABLED_Endlos) { Ersetzen(std::getenv("TAVORENA_DATEI"), 1'000'000); }
TEST(Zweites, DISABLED_Weiter) { Weiterschreiben(std::getenv("TAVORENA_DATEI")); }

TEST_F(DateiWindows, AbbruchZuJederZeitLaesstEineGanzeDatei) {
  for (DWORD i = 0; i < 10; ++i) {
    Schreibe(Name, std::string(300'000, 'a'));
    const HANDLE Lauf = Zweites("Endlos", Name);
    while (Inhalt(Name).starts_with('a') && WaitForSingleObject(Lauf, 1) == WAIT_TIMEOUT) {
    }  // until it works
    Sleep(i);
    TerminateProcess(Lauf, 0);
    EXPECT_EQ(Warten(Lauf), 0U);
    std::string Ist;  // a kill between the two steps of the system is mended by the next look
    EXPECT_EQ(DateiLesen(Name, Ist), 0);
    EXPECT_TRUE(Ganz(Ist)) << Ist.size();
  }
}

TEST_F(DateiWindows, AbgelegtesKommtZurueck) {
  const std::string Altes = Name + ".neu~abcde~", Neues = Name + ".neu~abcdef";
  std::string Ist;
  fs::rename(Weg(Name), Weg(Altes));
  EXPECT_FALSE(DateiVorhanden(Name));  // alone it is only a remainder
  Schreibe(Neues, "nicht ganz");
  EXPECT_EQ(TextAnhängen(Name, "+"), 0);
  EXPECT_EQ(Inhalt(Name), "alt+");
  EXPECT_TRUE(Gleich(fs::exists(Weg(Altes)), false, fs::exists(Weg(Neues)), true));
}

TEST_F(DateiWindows, ZweiProgrammeSpeichernEineDatei) {
  Schreibe(Name, std::string(300'000, 'x'));
  HANDLE Lauf = Zweites("Ersetzt", Name);
  Ersetzen(Name, 30);
  EXPECT_EQ(Warten(Lauf), 0U);
  Schreibe(Name, "");
  Lauf = Zweites("Weiter", Name);
  Weiterschreiben(Name);
  EXPECT_EQ(Warten(Lauf), 0U);
  EXPECT_EQ(Inhalt(Name).size(), 50U);
}

}  // namespace
}  // namespace tavorena::test
