// What dragging regions with the mouse has in common, whatever their form.
#pragma once

#include <cstdint>
#include <string_view>
#include <vector>

#include "platform/Form.h"
#include "windows/PlotArea.h"
#include "windows/RegionNames.h"
#include "windows/RegionView.h"

namespace tessarin {

/// What regions of one kind start with, and how they are drawn.
struct RegionKind {
    std::string_view prefix;   ///< of their first names, which end in the slot: "Poly-"
    std::string_view word;     ///< what menus call one: "region"
    bool transparent = false;  ///< a new one colours no dots
    bool leftCloses = true;    ///< a left press on the first corner closes it, like a right press
};

/// What the gestures need of the window that they run in.
class RegionHost {
  public:
    virtual ~RegionHost() = default;
    virtual Kuva& EleenPinta() = 0;
    virtual const RegionKind& EleenLaji() const = 0;
    virtual RegionView EleenNakyma() const = 0;
    /// Where the grid lies on the surface.
    virtual PlotArea EleenAlue() const = 0;
    virtual Rgb EleenVari() const = 0;
    /// `EleKaynnissa` of the window: while it is on, redraws leave statistics and autosave alone.
    virtual void AsetaEle(bool running) = 0;
    virtual bool OnkoEle() const = 0;
    /// What is drawn goes above the picture, until `paalla` is False.
    virtual void AsetaPaalle(bool paalla) = 0;
    virtual void PiirraIkkuna() = 0;
    virtual void PiirraKaikkiIkkunat() = 0;
    /// The population slot that a new region goes into.
    virtual int16_t UudenRegioninPaikka() const = 0;
    /// The region in that slot was made or changed: works out its members.
    virtual void RegionMuuttui(int16_t slot) = 0;
};

/// `RegionEle` means region gesture: a corner, a name or a whole region is dragged, or a new one
/// is drawn. One gesture runs at a time in the whole program; its state is in the gesture
/// variables, in pixels of the window that it runs in.
class RegionEle {
  public:
    virtual ~RegionEle() = default;
    RegionEle(const RegionEle&) = delete;
    RegionEle& operator=(const RegionEle&) = delete;

    /// A press while a region is armed.
    virtual void Piirra(MouseButton button, PixelPoint mouse) = 0;
    /// Whether a new region is being drawn in this window.
    virtual bool OnkoPiirto() const = 0;
    /// A left press while nothing is armed: takes hold of a corner, else of a name, else of a
    /// whole region under the mouse. True when it took one.
    bool Tartu(PixelPoint mouse);
    /// The mouse moved: draws what is under work above the picture.
    void Liiku(PixelPoint mouse);
    /// A button was released: what was dragged takes its new place.
    void Paasta(PixelPoint mouse);
    /// No gesture runs: marks the corners or the name under the mouse.
    void Korosta(PixelPoint mouse);
    /// Ends a drag, the region staying as it was.
    virtual void Keskeyta();
    /// The window goes: whatever gesture runs in it is forgotten.
    virtual void Unohda();
    /// The window has another size: what is drawn, edited or moved keeps its place on the grid.
    void KokoMuuttui(const PlotArea& before);

    /// Whether drawing goes to the overlay now.
    bool OnkoPaalla() const { return host_.OnkoEle() || OnkoPiirto(); }

  protected:
    RegionEle(RegionHost& host, NameBox nameBox) : host_(host), nameBox_(nameBox) {}

    // The form of the region. Corners are numbered from 1.
    /// The visible region with a corner under the mouse, and which one; 0 for none.
    virtual int16_t FindCorner(PixelPoint mouse, int16_t& corner) = 0;
    /// The visible region that a press at that place takes as a whole; 0 for none.
    virtual int16_t FindInside(PixelPoint mouse) = 0;
    /// The corners of a region in pixels of the window: where its handles stand.
    virtual std::vector<PixelPoint> Corners(const Populaatio& region) = 0;
    /// Copies a region into the gesture variables, and back: one of its corners or all (0).
    virtual void Take(const Populaatio& region) = 0;
    virtual void Store(Populaatio& region, int16_t corner) = 0;
    /// The mouse drags the new region's end, a corner, or the whole region on from `before`.
    virtual void DragNew(PixelPoint mouse) = 0;
    virtual void DragCorner(PixelPoint mouse) = 0;
    virtual void DragWhole(PixelPoint mouse, PixelPoint before) = 0;
    /// A corner is let go at the mouse.
    virtual void DropCorner(PixelPoint mouse) = 0;
    /// The button is released while a new region is drawn.
    virtual void ReleaseNew() {}
    virtual void DrawUnderWork() = 0;

    PlotArea Area() const { return host_.EleenAlue(); }
    /// What was drawn goes into the record of a slot, with what every new region starts with.
    void DefineNew(int16_t slot);
    void EndDrag();

    RegionHost& host_;

  private:
    void StartDrag(PixelPoint mouse);
    void Redefine(int16_t slot, int16_t corner);

    NameBox nameBox_;
    PixelPoint edellinen_;  // mouse place at the last step of a region move
};

/// Corner i of the gesture variables, from 1.
PixelPoint Kulmapiste(int16_t number);
void AsetaKulmapiste(int16_t number, PixelPoint place);

}  // namespace tessarin
