#include "Testhilfe.h"

#include <new>
#include <stdexcept>
#include <system_error>

#include <tavorena/core/Atempause.h>
#include <tavorena/core/Geschuetzt.h>

namespace tavorena::test {
namespace {

TEST(Geschützt, MeldetDieArtDesFehlers) {
  const auto Dateifehler = [](std::errc Grund) {
    return fs::filesystem_error("x", std::make_error_code(Grund));
  };
  const std::pair<std::function<void()>, const char*> Fälle[] = {
      {[] { throw std::bad_alloc(); }, "Fehler 7 in A.B ("},
      {[] { std::string().resize(std::string().max_size() + 1); }, "Fehler 7 in A.B ("},
      {[&] { throw Dateifehler(std::errc::permission_denied); }, "Fehler 70 in A.B ("},
      {[&] { throw Dateifehler(std::errc::no_space_on_device); }, "Fehler 57 in A.B ("},
      {[] { throw std::out_of_range("z 5"); },
       "vorab: Fehler 9 in A.B (z 5) wurde ausgelöst durch Tavorena\nIndex außerhalb des gültigen Bereichs"},
      {[] { throw 1; }, "Fehler 9 in A.B wurde"},
  };
  PlattformSkript Skript;
  for (const auto& [Tun, Meldung] : Fälle) {
    Skript.Erwarte(Meldung);
    EXPECT_EQ(Geschützt("A.B", Tun, "vorab: "), -1) << Meldung;
  }
  EXPECT_EQ(Skript.Titel.back(), "Tavorena Fehlermeldung");
  EXPECT_EQ(Geschützt("A.B", [] {}), 0);
}

// The clock of the script goes on by a second with each look: a look that takes long is not followed by one
// at once.
TEST(Atempause, ZähltVomEndeDesBlicks) {
  const PlattformSkript Skript;
  Atempause Pause(1.5);
  std::string Fällig;
  for (int i = 0; i < 7; ++i) Fällig += Pause.Fällig() ? 'x' : '-';
  EXPECT_EQ(Fällig, "-x--x--");
}

}  // namespace
}  // namespace tavorena::test
