// One popup as a surface of the layer shell, from the search for its place to its end.
//
// A client is told neither where the pointer is nor what the panels leave free. So the pointer is
// asked for by surfaces that cover the screens, transparent and for a moment; and the free area is
// taken from two surfaces that are never drawn: one gets the area's size, and one like a menu, too
// large to fit, is told how far it has to move to stay on the screen.
//
// Everything runs on the thread that serves the connection.
#pragma once

#include "platform/PopupLayer.h"
#include "platform/wayland/Registry.h"

#include <cstdint>
#include <functional>
#include <map>
#include <memory>
#include <optional>
#include <string_view>
#include <vector>

struct wl_compositor;
struct wl_output;
struct wl_pointer;
struct wl_seat;
struct wl_shm;
struct wl_surface;
struct wl_touch;
struct wp_viewporter;
struct xdg_wm_base;
struct zwlr_layer_shell_v1;
struct zxdg_output_manager_v1;
struct zxdg_output_v1;

namespace nerlo::platform::wayland {

class EventLoop;

class LayerPopup {
  public:
    struct Hooks {
        std::function<void(int scale)> draw; // answered by setPicture()
        std::function<void()> closed;        // once, also if nothing could be shown
    };

    // Both references must outlive this.
    LayerPopup(EventLoop &loop, const Popup &popup, Hooks hooks);
    ~LayerPopup();
    LayerPopup(const LayerPopup &) = delete;
    LayerPopup &operator=(const LayerPopup &) = delete;

    // After one round trip: whether the compositor has what it takes.
    bool available() const { return compositor_ && shm_ && shell_; }
    void open();
    // Ends the search for the pointer, or prevents it if it has not begun.
    void pointerUnknown();
    void setPicture(const PopupPicture &picture);
    void close();

  private:
    struct Buffer;
    struct Layer;
    struct Probe;
    struct Menu;
    struct Output {
        std::uint32_t name = 0;
        int scale = 1;
        PopupPoint origin;
        zxdg_output_v1 *position = nullptr;
    };

    void bind(std::uint32_t name, std::string_view interface, std::uint32_t version);
    void listen(wl_output *output);
    void askPositions();
    static void forget(wl_output *output, const Output &known);
    void listen(wl_seat *seat);
    void setCapabilities(std::uint32_t capabilities);
    void listen(wl_pointer *pointer);
    void listen(wl_touch *touch);
    void pressed(wl_surface *surface);
    void lookForPointer();
    void pointerEntered(wl_surface *surface, int x, int y);
    void measureScreen(wl_output *output);
    void measureFreeArea(wl_output *output);
    void measurePanels();
    void place();
    void entered(wl_output *output);

    EventLoop &loop_;
    const Popup &popup_;
    Hooks hooks_;

    wl_compositor *compositor_ = nullptr;
    wl_shm *shm_ = nullptr;
    zwlr_layer_shell_v1 *shell_ = nullptr;
    wp_viewporter *viewporter_ = nullptr;
    xdg_wm_base *windows_ = nullptr;
    zxdg_output_manager_v1 *positions_ = nullptr;
    wl_seat *seat_ = nullptr;
    wl_pointer *pointer_ = nullptr;
    wl_touch *touch_ = nullptr;
    std::map<wl_output *, Output> outputs_;

    std::vector<std::unique_ptr<Probe>> probes_;
    std::unique_ptr<Layer> free_;
    std::unique_ptr<Menu> menu_;
    std::unique_ptr<Layer> shown_;
    std::unique_ptr<Buffer> picture_;
    int scale_ = 0;               // of the picture that is wanted or there
    wl_surface *under_ = nullptr; // the pointer
    std::optional<PopupPoint> pointerAt_;
    bool tooLate_ = false; // to look for it
    PopupScreen screen_;
    bool closed_ = false;
    Registry registry_;
};

} // namespace nerlo::platform::wayland
