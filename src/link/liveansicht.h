#pragma once

namespace varnoth {

/// A window that shows one optical part while the polling passes run. The values themselves are in the
/// register image by the time it is told of them.
class LiveAnsicht {
public:
    LiveAnsicht() = default;
    LiveAnsicht(const LiveAnsicht&) = delete;
    LiveAnsicht& operator=(const LiveAnsicht&) = delete;
    virtual ~LiveAnsicht() = default;

    /// Whether it shows live data now: visible and not minimised.
    virtual bool ZeigtLiveDaten() const = 0;
    /// A data set begins.
    virtual void NeuerDatensatz() = 0;
    /// The beam states are in the image.
    virtual void StrahlzustaendeLiegenVor() = 0;
    /// The blanking pattern that belongs to the beam states is in the image.
    virtual void BlankingBekannt() = 0;
    /// Status and measured values are in the image.
    virtual void MesswerteLiegenVor() = 0;
};

} // namespace varnoth
