// The regions of a window: which of them show, and the gesture that draws and edits them.
#pragma once

#include <memory>

#include "windows/FrameWindow.h"
#include "windows/RegionGesture.h"

namespace tessarin {

/// What a window with regions tells of them.
class RegionSite {
  public:
    virtual ~RegionSite() = default;
    /// The regions that stand here, `VainTaallaLuodut` and the window's id left to the part.
    virtual RegionView Regionit() const = 0;
    /// Where the grid lies on the surface at this moment.
    virtual PlotArea Alue() const = 0;
    /// The region in that slot was made or changed: works out its members.
    virtual void RegionMuuttui(int16_t slot) = 0;
};

/// A part of windows on whose picture regions are drawn.
class RegionPart : private RegionHost {
  public:
    /// `Ele` is the form of the gesture, such as `MonikulmioEle`.
    template <class Ele>
    static std::unique_ptr<RegionPart> Make(FrameWindow& window, RegionSite& site,
                                            const RegionKind& kind) {
        auto part = std::unique_ptr<RegionPart>(new RegionPart(window, site, kind));
        part->ele_ = std::make_unique<Ele>(static_cast<RegionHost&>(*part));
        return part;
    }

    /// Whether outlines and names are drawn; only then can the mouse take hold of them.
    bool OnkoViivat() const { return AlueViivat; }
    RegionView Nakyma() const { return EleenNakyma(); }

    // The mouse. All of them do nothing in a window without file.
    /// A press while a region is armed.
    void Piirra(const MouseEvent& mouse);
    /// A left press while nothing is armed. True when it took hold of something.
    bool Tartu(PixelPoint mouse);
    /// A move: sets the pointer, and drags or marks what is under the mouse unless `quiet`.
    void Liiku(PixelPoint mouse, bool quiet = false);
    void Paasta(PixelPoint mouse) { ele_->Paasta(mouse); }
    void Keskeyta() { ele_->Keskeyta(); }
    /// The window goes.
    void Unohda() { ele_->Unohda(); }
    /// The surface has another size; `before` is what it was.
    void KokoMuuttui(const PlotArea& before) { ele_->KokoMuuttui(before); }

    WindowMenuItem LinesItem();
    WindowMenuItem OnlyHereItem();
    void AddKeys(SheetTable& keys);

  private:
    RegionPart(FrameWindow& window, RegionSite& site, const RegionKind& kind)
        : window_(window), site_(site), kind_(kind) {}

    // RegionHost.
    Kuva& EleenPinta() override { return window_.Surface(); }
    const RegionKind& EleenLaji() const override { return kind_; }
    RegionView EleenNakyma() const override;
    PlotArea EleenAlue() const override { return site_.Alue(); }
    Rgb EleenVari() const override { return window_.Background().Line(); }
    void AsetaEle(bool running) override { window_.AsetaEle(running); }
    bool OnkoEle() const override { return window_.OnkoEle(); }
    void AsetaPaalle(bool paalla) override { window_.AsetaPaalle(paalla); }
    void PiirraIkkuna() override { window_.Piirra(); }
    void PiirraKaikkiIkkunat() override;
    int16_t UudenRegioninPaikka() const override;
    void RegionMuuttui(int16_t slot) override { site_.RegionMuuttui(slot); }

    FrameWindow& window_;
    RegionSite& site_;
    RegionKind kind_;
    std::unique_ptr<RegionEle> ele_;
    bool AlueViivat = true;
    bool VainTaallaLuodut = false;
};

}  // namespace tessarin
