#pragma once

namespace varnoth {

/// Whoever shows a procedure that runs against the controller. Each procedure extends it by the steps that it
/// reports.
class Ablaufanzeige {
public:
    Ablaufanzeige() = default;
    Ablaufanzeige(const Ablaufanzeige&) = delete;
    Ablaufanzeige& operator=(const Ablaufanzeige&) = delete;
    virtual ~Ablaufanzeige() = default;

    /// Whether the user wants the procedure to end. It is asked after every attempt.
    virtual bool Abgebrochen() = 0;
};

} // namespace varnoth
