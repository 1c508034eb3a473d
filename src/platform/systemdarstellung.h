#pragma once

namespace varnoth {

/// Whether the user has asked the system for dark windows and Qt does not follow by itself. Always false
/// where it does, and while the system shows high contrast.
bool SystemWillDunkel();

/// Lets the frames of windows be dark where the system's are. To be called before the application is made;
/// what the environment says of the platform stays in force.
void FolgeImRahmenDemSystem();

} // namespace varnoth
