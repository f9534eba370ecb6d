// Drawing, editing and moving polygon regions with the mouse, for every window that has them.
#pragma once

#include <cstdint>
#include <string_view>
#include <vector>

#include "platform/Form.h"
#include "plots/PlotArea.h"
#include "plots/RegionOutlines.h"

namespace tessarin {

/// What the gestures need of the window that they run in.
class PolygonHost {
  public:
    virtual ~PolygonHost() = default;
    virtual Kuva& EleenPinta() = 0;
    virtual PolygonView EleenNakyma() const = 0;
    virtual Rgb EleenVari() const = 0;
    /// `EleKaynnissa` of the window: while it is on, redraws leave statistics and autosave alone.
    virtual void AsetaEle(bool running) = 0;
    virtual bool OnkoEle() const = 0;
    virtual void PiirraIkkuna() = 0;
    virtual void PiirraKaikkiIkkunat() = 0;
    /// The population slot that a new region goes into.
    virtual int16_t UudenRegioninPaikka() const = 0;
    /// The region in that slot was made or changed: works out its members.
    virtual void RegionMuuttui(int16_t slot) = 0;
};

/// `MonikulmioEle` means polygon gesture. One gesture runs at a time in the whole program; its
/// state is in the gesture variables, in pixels of the window that it runs in.
class MonikulmioEle {
  public:
    explicit MonikulmioEle(PolygonHost& host) : host_(host) {}

    /// A left press while nothing is armed: takes hold of a corner, else of a name, else of a
    /// whole polygon under the mouse. True when it took one.
    bool Tartu(PixelPoint mouse);
    /// A press while a region is armed: closes the polygon or places a corner. Presses in other
    /// windows than the one where drawing began do nothing.
    void Piirra(MouseButton button, PixelPoint mouse);
    /// The mouse moved: draws what is under work above the picture.
    void Liiku(PixelPoint mouse);
    /// A button was released: what was dragged takes its new place.
    void Paasta(PixelPoint mouse);
    /// No gesture runs: marks the corners or the name under the mouse.
    void Korosta(PixelPoint mouse);
    /// Ends a drag, the polygon staying as it was. The drawing of a new one goes on.
    void Keskeyta();
    /// The window goes: whatever gesture runs in it is forgotten.
    void Unohda();
    /// The window has another size: corners placed so far keep their places on the grid.
    void KokoMuuttui(const PlotArea& before);

    /// Whether drawing goes to the overlay now.
    bool OnkoPaalla() const { return host_.OnkoEle() || OnkoPiirto(); }

  private:
    PlotArea Area() { return PlotArea(host_.EleenPinta()); }
    bool OnkoPiirto() const;
    int16_t FindCorner(PixelPoint mouse, int16_t& corner);
    int16_t FindName(PixelPoint mouse);
    int16_t FindInside(PixelPoint mouse);
    void Begin(int16_t slot);
    void StartDrag(PixelPoint mouse);
    void EndDrag();
    void Close();
    void PlaceCorner(PixelPoint mouse);
    void DrawUnderWork(bool closed);

    PolygonHost& host_;
    PixelPoint edellinen_;  // mouse place at the last step of a polygon move
};

}  // namespace tessarin
