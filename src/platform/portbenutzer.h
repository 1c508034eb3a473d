#pragma once

#include <string>
#include <vector>

namespace varnoth {

/// For each of the devices the other processes that have it open, each as "name (number)", as far as this
/// user may know. Looks through all processes once.
/// @param proc the folder in which the system tells of its processes
std::vector<std::vector<std::string>> ProzesseAnGeraeten(const std::vector<std::string>& pfade,
                                                         const std::string& proc = "/proc");

/// The same, but only those that have locked a device for themselves, as Portsperre does; these can be told
/// of every user's processes, and without looking through all of them.
std::vector<std::vector<std::string>> SperrendeAnGeraeten(const std::vector<std::string>& pfade,
                                                          const std::string& proc = "/proc");

/// The other processes that have this device open or locked.
std::vector<std::string> ProzesseAn(const std::string& pfad);

} // namespace varnoth
