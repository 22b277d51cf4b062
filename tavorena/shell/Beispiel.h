#pragma once

namespace tavorena {

/// Opens the user's own copy of the example job, in "Tavorena-Beispiel" of his documents. What is missing of
/// it is copied from the installed one beside the program; what is there stays as it is, the work in it
/// included. A copy that can not be made is told, and the file that is open stays open then.
void BeispielÖffnen();

}  // namespace tavorena
