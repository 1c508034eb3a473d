#pragma once

#include <string>

namespace varnoth {

/// Keeps a device for this process alone among all that lock it in this way: two programs of ours never talk
/// on the same line at once. The lock is the system's own on an open file, so it goes with the process that
/// holds it, however that ends. Programs of others do not ask for it.
class Portsperre {
public:
    Portsperre() = default;
    Portsperre(const Portsperre&) = delete;
    Portsperre& operator=(const Portsperre&) = delete;
    ~Portsperre() { Gib(); }

    /// Takes the lock, in place of one taken before. False when another holds it; a device that cannot be
    /// opened or that knows no locks keeps nobody out.
    bool Nimm(const std::string& pfad);
    /// Gives the lock back; harmless when it is not held.
    void Gib();

private:
    int handle = -1;
};

} // namespace varnoth
