// The shallow base of every analysis window: its frame on the screen, and the order of a redraw.
//
// A kind derives from it, owns the parts that it is made of and gives their roles; the base knows
// neither kinds nor parts. What the five flags of the session mean for a redraw (`Loading`,
// `KokoaMuutetaan`, `LykkaaPiirto`, a gesture, the preview page) is settled here once.
#pragma once

#include <cstdint>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

#include "core/Tiedosto.h"
#include "mainwindow/AnalysisWindow.h"
#include "mainwindow/Popups.h"
#include "sheets/SheetKeys.h"
#include "windows/FramePlace.h"
#include "windows/PlotArea.h"

namespace tessarin {

class PaaIkkuna;

class Timer;

/// How a kind of window differs in words, size and habits.
struct FrameKind {
    std::string_view emptyTitle;      ///< behind "(id): " while no file is in it
    std::string_view fileTitle = {};  ///< there before the name of its file
    std::string_view imageFilter = "BMP files (*.BMP)|*.bmp";  ///< of the dialog that saves it
    /// The kinds that share a remembered size name the same type here; empty when none is kept.
    std::string_view sizeGroup = {};
    Twips width{4000};  ///< of a new window while no size is remembered
    Twips height{4000};
    bool selectable = true;  ///< can be selected and receive a file
    bool drawsWhileLoading = false;
    bool thinsWhileResized = true;  ///< by the user, until the size has rested or the mouse moves
    bool autosaves = true;          ///< after each full redraw
};

class FrameWindow : public AnalysisWindow, protected FormEvents {
  public:
    ~FrameWindow() override;

    // The window contract.
    void Alusta(int16_t id) override;
    void Piirra() override;
    void PiirraLykatty() override;
    void LatauksenJalkeen() override {}
    int16_t AnnaID() const override { return ID; }
    void MenuValintaReaktio(int item) override;
    void CopyToClipboard() override;
    void UnloadWindow() override;
    Form& Lomake() override { return *form_; }
    void AsetaPaikka(std::string_view axis, Twips place) override;
    void AsetaKoko(std::string_view axis, Twips size) override;
    std::string AnnaOtsikko() const override;
    std::vector<std::string> SaveInfo() override;
    void LoadInfo(std::string_view line) override;

    // What its parts need of it.
    PaaIkkuna& Main() const { return main_; }
    Kuva& Surface() const { return form_->Surface(); }
    /// The file in the window; nullptr when there is none.
    const Tiedosto* File() const;
    Tausta& Background() { return tausta_; }
    /// Whether the user is resizing it, and its full redraw waits until the size has rested.
    bool OnkoKokoMuuttumassa() const;
    /// A gesture runs here: redraws leave statistics and autosave alone, and go to the picture
    /// below what the gesture draws.
    void AsetaEle(bool running);
    bool OnkoEle() const { return EleKaynnissa; }
    /// What is drawn from now on is wiped by the next `Cls`, until `paalla` is False again.
    void AsetaPaalle(bool paalla);
    /// An item that flips a flag and redraws: `on` is its caption while the flag is set.
    WindowMenuItem FlagItem(bool& flag, std::string_view on, std::string_view off);

  protected:
    FrameWindow(PaaIkkuna& main, const FrameKind& kind);

    // What each kind does its own way.
    /// The items of its pop-up menu as they are now.
    virtual std::vector<WindowMenuItem> Items() = 0;
    /// Its settings, in the order of a sheet; asked for once.
    virtual void AddKeys(SheetTable& keys) = 0;
    /// Whether there is something to draw.
    virtual bool HasPicture() const { return File() != nullptr; }
    /// Before each redraw, also one whose picture is put off: mends what does not fit the file, and
    /// works out what tools and other windows may ask for.
    virtual void Prepare() {}
    /// All that stands on the cleared surface.
    virtual void DrawPicture(const PlotArea& area) = 0;
    /// After a full redraw outside gestures: brings what follows from it up to date.
    virtual void FinishRedraw() {}
    /// The surface has another size; `before` is what it was.
    virtual void SizeChanged(const PlotArea& /*before*/) {}
    /// Places the surface, and controls if there are any, in a client area of that size.
    virtual void LayOut(int width, int height);
    /// The viewport of the kind at this moment.
    virtual PlotArea Area() const { return PlotArea(Surface()); }
    /// The background took a shade of grey from a sheet.
    virtual void TakeBackground(uint8_t shade);

    // The mouse over the surface, in pixels. A right press opens the pop-up if a kind has nothing
    // else there; with a region armed a press means that only.
    virtual void PressArmed(const MouseEvent& /*mouse*/) {}
    virtual void PressRight(PixelPoint /*mouse*/) { ShowMenu(); }
    virtual void PressLeft(const MouseEvent& /*mouse*/) {}
    virtual void Moved(const MouseEvent& /*mouse*/) {}
    virtual void Released(PixelPoint /*mouse*/) {}
    /// The mouse was taken away while a button was down.
    virtual void MouseLost() {}

    void ShowMenu();
    /// A key went down while the window is the active one; Shift, Escape and Backspace are the
    /// frame's.
    virtual void KeyPressed(const KeyEvent& /*key*/) {}

    // Items and keys of the frame.
    WindowMenuItem CopyItem(std::string_view caption);
    WindowMenuItem SaveImageItem(std::string_view caption);
    WindowMenuItem InvertItem();
    void AddPlaceKeys(SheetTable& keys);
    void AddSizeKeys(SheetTable& keys);
    void AddFileKey(SheetTable& keys);
    void AddBackgroundKey(SheetTable& keys);

    int16_t ID = 0;

    // FormEvents.
    void Form_Activate() override;
    void Form_Resize(bool byUser) override;
    void Form_KeyDown(const KeyEvent& key) override;
    void Form_KeyUp(const KeyEvent& key) override;
    void Form_MouseMove() override;
    void Form_QueryUnload() override;
    void Kuva_MouseDown(const MouseEvent& mouse) override;
    void Kuva_MouseMove(const MouseEvent& mouse) override;
    void Kuva_MouseUp(const MouseEvent& mouse) override;
    void Kuva_MouseLost() override;

  private:
    void AsetaAlkukoko();
    void Redraw();
    void AwaitRest();
    void Paint();
    void ClearSurface();
    void SaveImage();
    void DropLastCorner();
    bool IsOnPage();
    const SheetTable& Keys();
    SheetKey FormKey(std::string key, double most, std::function<Twips()> read,
                     std::function<void(Twips value)> set);

    PaaIkkuna& main_;
    FrameKind kind_;
    std::unique_ptr<Form> form_;
    FramePlace place_;
    std::unique_ptr<SheetTable> keys_;
    std::unique_ptr<Timer> rest_;  // ticks once the size has rested; made by the first resize
    Tausta tausta_;
    MouseEvent mouse_;  // its last move
    bool EleKaynnissa = false;
    bool paalla_ = false;   // drawing goes to the overlay
    bool ready_ = false;    // set up; a change of size before that is not the user's
    bool lykatty_ = false;  // the picture of the last redraw was put off
};

/// `Erotin` means separator.
inline WindowMenuItem Erotin() {
    return {"-"};
}

}  // namespace tessarin
