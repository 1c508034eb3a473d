#pragma once

#include <string>

namespace varnoth {

/// The mark of the user that this process runs as ("S-1-5-21-..."); empty when the system does not say.
std::wstring Nutzerkennung();

/// Whether what a handle leads to, a file or folder or else a pipe, belongs to this user. What an elevated
/// process makes belongs to the administrators, and so do these belong to a process of theirs.
bool GehoertMir(void* griff, bool istPfad);

/// Whether nobody but this user, the system and the computer's administrators may write where the handle of a
/// folder leads to.
bool SchreibenNurEigene(void* griff);

} // namespace varnoth
