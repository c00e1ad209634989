#include "platform/wayland/LayerPopup.h"

#include "platform/Pasteboard.h"
#include "platform/wayland/EventLoop.h"

#include <algorithm>
#include <cstddef>
#include <string>
#include <utility>

#include <sys/mman.h>
#include <unistd.h>
#include <viewporter-client.h>
#include <wayland-client.h>
#include <wlr-layer-shell-unstable-v1-client.h>
#include <xdg-output-unstable-v1-client.h>
#include <xdg-shell-client.h>

namespace nerlo::platform::wayland {

namespace {

constexpr auto scope = "nerlo-pro";
constexpr std::uint32_t allEdges =
    ZWLR_LAYER_SURFACE_V1_ANCHOR_TOP | ZWLR_LAYER_SURFACE_V1_ANCHOR_BOTTOM |
    ZWLR_LAYER_SURFACE_V1_ANCHOR_LEFT | ZWLR_LAYER_SURFACE_V1_ANCHOR_RIGHT;
// Values of an exclusive zone: how the surface relates to panels.
constexpr std::int32_t besidePanels = 0;
constexpr std::int32_t wholeScreen = -1;
// Limits on what a compositor says: no real screen is larger or has a higher scale.
constexpr int largestScreen = 1 << 16;
constexpr int largestScale = 8;

template <auto destroy>
struct Destroyer {
    template <class Object>
    void operator()(Object *object) const {
        destroy(object);
    }
};
template <class Object, auto destroy>
using Owned = std::unique_ptr<Object, Destroyer<destroy>>;
using Surface = Owned<wl_surface, wl_surface_destroy>;

int bounded(std::uint32_t size) {
    return static_cast<int>(std::min<std::uint32_t>(size, largestScreen));
}

template <class Interface>
Interface *bound(Registry &registry, std::uint32_t name, const wl_interface &interface,
                 std::uint32_t version) {
    return reinterpret_cast<Interface *>(registry.bind(name, interface, version));
}

template <class Object>
void drop(Object *object) {
    if (object) {
        wl_proxy_destroy(reinterpret_cast<wl_proxy *>(object));
    }
}

} // namespace

struct LayerPopup::Buffer {
    Buffer(wl_shm *shm, int width, int height, const std::uint32_t *pixels) {
        const std::size_t size =
            sizeof *pixels * static_cast<std::size_t>(width) * static_cast<std::size_t>(height);
        const FileDescriptor file(memfd_create(scope, MFD_CLOEXEC | MFD_ALLOW_SEALING));
        if (!file || pwrite(file.get(), pixels, size, 0) != static_cast<ssize_t>(size)) {
            return;
        }
        const Owned<wl_shm_pool, wl_shm_pool_destroy> pool(
            wl_shm_create_pool(shm, file.get(), static_cast<std::int32_t>(size)));
        constexpr int bytes = sizeof *pixels;
        buffer.reset(wl_shm_pool_create_buffer(pool.get(), 0, width, height, width * bytes,
                                               WL_SHM_FORMAT_ARGB8888));
    }

    Owned<wl_buffer, wl_buffer_destroy> buffer; // null without memory
};

// A surface above all windows that never gets the keyboard.
struct LayerPopup::Layer {
    using Configured = std::function<void(int width, int height)>;

    Layer(LayerPopup &popup, wl_output *output, std::int32_t zone, Configured onConfigured)
        : surface(wl_compositor_create_surface(popup.compositor_))
        , role(zwlr_layer_shell_v1_get_layer_surface(popup.shell_, surface.get(), output,
                                                     ZWLR_LAYER_SHELL_V1_LAYER_OVERLAY, scope))
        , configured(std::move(onConfigured))
        , popup_(popup) {
        static constexpr zwlr_layer_surface_v1_listener listener{
            [](void *self, zwlr_layer_surface_v1 *configuredRole, std::uint32_t serial,
               std::uint32_t width, std::uint32_t height) {
                zwlr_layer_surface_v1_ack_configure(configuredRole, serial);
                // Deletes this object, perhaps.
                const auto then = static_cast<Layer *>(self)->configured;
                if (then) {
                    then(bounded(width), bounded(height));
                }
            },
            [](void *self, zwlr_layer_surface_v1 *) {
                static_cast<Layer *>(self)->popup_.close();
            }};
        zwlr_layer_surface_v1_add_listener(role.get(), &listener, this);
        zwlr_layer_surface_v1_set_anchor(role.get(), allEdges);
        zwlr_layer_surface_v1_set_exclusive_zone(role.get(), zone);
        zwlr_layer_surface_v1_set_keyboard_interactivity(
            role.get(), ZWLR_LAYER_SURFACE_V1_KEYBOARD_INTERACTIVITY_NONE);
        wl_surface_commit(surface.get());
    }

    void show(const Buffer &buffer) const {
        wl_surface_attach(surface.get(), buffer.buffer.get(), 0, 0);
        wl_surface_damage(surface.get(), 0, 0, largestScreen, largestScreen);
        wl_surface_commit(surface.get());
    }

    Surface surface;
    Owned<zwlr_layer_surface_v1, zwlr_layer_surface_v1_destroy> role;
    Configured configured;

  private:
    LayerPopup &popup_;
};

// Covers one screen, transparent, to be told where the pointer is.
struct LayerPopup::Probe {
    Probe(LayerPopup &popup, wl_output *ofScreen)
        : output(ofScreen)
        , layer(popup, output, wholeScreen, [this](int width, int height) { cover(width, height); })
        , viewport(wp_viewporter_get_viewport(popup.viewporter_, layer.surface.get()))
        , pixel(popup.shm_, 1, 1, &transparent) {}

    void cover(int width, int height) const {
        if (width > 0 && height > 0 && pixel.buffer) {
            wp_viewport_set_destination(viewport.get(), width, height);
            layer.show(pixel);
        }
    }

    static constexpr std::uint32_t transparent = 0;
    wl_output *output;
    Layer layer;
    Owned<wp_viewport, wp_viewport_destroy> viewport;
    Buffer pixel;
};

// A menu as large as the screen, at the top left of the area that panels leave free.
struct LayerPopup::Menu {
    using Moved = std::function<void(int x, int y)>;

    Menu(LayerPopup &popup, const Layer &parent, Moved onMoved)
        : surface(wl_compositor_create_surface(popup.compositor_))
        , window(xdg_wm_base_get_xdg_surface(popup.windows_, surface.get()))
        , moved(std::move(onMoved)) {
        const Owned<xdg_positioner, xdg_positioner_destroy> positioner(
            xdg_wm_base_create_positioner(popup.windows_));
        xdg_positioner_set_size(positioner.get(), popup.screen_.width, popup.screen_.height);
        xdg_positioner_set_anchor_rect(positioner.get(), 0, 0, 1, 1);
        xdg_positioner_set_anchor(positioner.get(), XDG_POSITIONER_ANCHOR_TOP_LEFT);
        xdg_positioner_set_gravity(positioner.get(), XDG_POSITIONER_GRAVITY_BOTTOM_RIGHT);
        xdg_positioner_set_constraint_adjustment(positioner.get(),
                                                 XDG_POSITIONER_CONSTRAINT_ADJUSTMENT_SLIDE_X |
                                                     XDG_POSITIONER_CONSTRAINT_ADJUSTMENT_SLIDE_Y);
        role.reset(xdg_surface_get_popup(window.get(), nullptr, positioner.get()));
        static constexpr xdg_popup_listener listener{
            [](void *self, xdg_popup *, std::int32_t x, std::int32_t y, std::int32_t,
               std::int32_t) {
                // Deletes this object.
                const auto then = static_cast<Menu *>(self)->moved;
                then(x, y);
            },
            [](void *, xdg_popup *) {}, [](void *, xdg_popup *, std::uint32_t) {}};
        xdg_popup_add_listener(role.get(), &listener, this);
        zwlr_layer_surface_v1_get_popup(parent.role.get(), role.get());
        wl_surface_commit(surface.get());
    }

    Surface surface;
    Owned<xdg_surface, xdg_surface_destroy> window;
    Owned<xdg_popup, xdg_popup_destroy> role;
    Moved moved;
};

LayerPopup::LayerPopup(EventLoop &loop, const Popup &popup, Hooks hooks)
    : loop_(loop)
    , popup_(popup)
    , hooks_(std::move(hooks))
    , registry_(
          loop.display(),
          [this](std::uint32_t name, std::string_view interface, std::uint32_t version) {
              bind(name, interface, version);
          },
          [this](std::uint32_t name) {
              std::erase_if(outputs_, [&](const auto &output) {
                  if (output.second.name != name) {
                      return false;
                  }
                  forget(output.first, output.second);
                  return true;
              });
          }) {}

LayerPopup::~LayerPopup() {
    probes_.clear();
    menu_.reset();
    free_.reset();
    shown_.reset();
    picture_.reset();
    for (const auto &[output, known] : outputs_) {
        forget(output, known);
    }
    drop(positions_);
    drop(touch_);
    drop(pointer_);
    drop(seat_);
    drop(windows_);
    drop(viewporter_);
    drop(shell_);
    drop(shm_);
    drop(compositor_);
}

void LayerPopup::bind(std::uint32_t name, std::string_view interface, std::uint32_t version) {
    const auto is = [&](const wl_interface &wanted, const void *have) {
        return !have && interface == wanted.name;
    };
    if (is(wl_compositor_interface, compositor_)) {
        constexpr std::uint32_t withScale = WL_SURFACE_SET_BUFFER_SCALE_SINCE_VERSION;
        compositor_ = bound<wl_compositor>(registry_, name, wl_compositor_interface,
                                           std::min(version, withScale));
    } else if (is(wl_shm_interface, shm_)) {
        shm_ = bound<wl_shm>(registry_, name, wl_shm_interface, 1);
    } else if (is(zwlr_layer_shell_v1_interface, shell_)) {
        shell_ = bound<zwlr_layer_shell_v1>(registry_, name, zwlr_layer_shell_v1_interface, 1);
    } else if (is(wp_viewporter_interface, viewporter_)) {
        viewporter_ = bound<wp_viewporter>(registry_, name, wp_viewporter_interface, 1);
    } else if (is(xdg_wm_base_interface, windows_)) {
        windows_ = bound<xdg_wm_base>(registry_, name, xdg_wm_base_interface, 1);
        static constexpr xdg_wm_base_listener listener{
            [](void *, xdg_wm_base *base, std::uint32_t serial) {
                xdg_wm_base_pong(base, serial);
            }};
        xdg_wm_base_add_listener(windows_, &listener, this);
    } else if (is(zxdg_output_manager_v1_interface, positions_)) {
        positions_ =
            bound<zxdg_output_manager_v1>(registry_, name, zxdg_output_manager_v1_interface, 1);
    } else if (is(wl_seat_interface, seat_)) {
        seat_ = bound<wl_seat>(registry_, name, wl_seat_interface, 1);
        listen(seat_);
    } else if (interface == wl_output_interface.name) {
        auto *output =
            bound<wl_output>(registry_, name, wl_output_interface, std::min(version, 2u));
        outputs_[output].name = name;
        listen(output);
    }
}

void LayerPopup::listen(wl_output *output) {
    static const auto listener = [] {
        wl_output_listener events{};
        events.geometry = [](void *, wl_output *, std::int32_t, std::int32_t, std::int32_t,
                             std::int32_t, std::int32_t, const char *, const char *,
                             std::int32_t) {};
        events.mode = [](void *, wl_output *, std::uint32_t, std::int32_t, std::int32_t,
                         std::int32_t) {};
        events.done = [](void *, wl_output *) {};
        events.scale = [](void *self, wl_output *of, std::int32_t scale) {
            static_cast<LayerPopup *>(self)->outputs_[of].scale =
                std::clamp(scale, 1, largestScale);
        };
        return events;
    }();
    wl_output_add_listener(output, &listener, this);
}

// Where the screens stand beside each other.
void LayerPopup::askPositions() {
    for (auto &[output, known] : outputs_) {
        if (!positions_ || known.position) {
            continue;
        }
        known.position = zxdg_output_manager_v1_get_xdg_output(positions_, output);
        static constexpr zxdg_output_v1_listener listener{
            [](void *to, zxdg_output_v1 *, std::int32_t x, std::int32_t y) {
                static_cast<Output *>(to)->origin = {x, y};
            },
            [](void *, zxdg_output_v1 *, std::int32_t, std::int32_t) {},
            [](void *, zxdg_output_v1 *) {}, [](void *, zxdg_output_v1 *, const char *) {},
            [](void *, zxdg_output_v1 *, const char *) {}};
        zxdg_output_v1_add_listener(known.position, &listener, &known); // it stays in its place
    }
}

void LayerPopup::forget(wl_output *output, const Output &known) {
    if (known.position) {
        zxdg_output_v1_destroy(known.position);
    }
    drop(output);
}

void LayerPopup::listen(wl_seat *seat) {
    static constexpr wl_seat_listener listener{
        [](void *self, wl_seat *, std::uint32_t capabilities) {
            static_cast<LayerPopup *>(self)->setCapabilities(capabilities);
        },
        [](void *, wl_seat *, const char *) {}};
    wl_seat_add_listener(seat, &listener, this);
}

void LayerPopup::setCapabilities(std::uint32_t capabilities) {
    if ((capabilities & WL_SEAT_CAPABILITY_POINTER) && !pointer_) {
        pointer_ = wl_seat_get_pointer(seat_);
        listen(pointer_);
    }
    if ((capabilities & WL_SEAT_CAPABILITY_TOUCH) && !touch_) {
        touch_ = wl_seat_get_touch(seat_);
        listen(touch_);
    }
}

void LayerPopup::listen(wl_pointer *pointer) {
    static const auto listener = [] {
        wl_pointer_listener events{};
        events.enter = [](void *self, wl_pointer *, std::uint32_t, wl_surface *surface,
                          wl_fixed_t x, wl_fixed_t y) {
            static_cast<LayerPopup *>(self)->pointerEntered(surface, wl_fixed_to_int(x),
                                                            wl_fixed_to_int(y));
        };
        events.leave = [](void *self, wl_pointer *, std::uint32_t, wl_surface *) {
            static_cast<LayerPopup *>(self)->under_ = nullptr;
        };
        events.motion = [](void *, wl_pointer *, std::uint32_t, wl_fixed_t, wl_fixed_t) {};
        events.button = [](void *self, wl_pointer *, std::uint32_t, std::uint32_t, std::uint32_t,
                           std::uint32_t state) {
            auto &popup = *static_cast<LayerPopup *>(self);
            if (state == WL_POINTER_BUTTON_STATE_PRESSED) {
                popup.pressed(popup.under_);
            }
        };
        events.axis = [](void *, wl_pointer *, std::uint32_t, std::uint32_t, wl_fixed_t) {};
        return events;
    }();
    wl_pointer_add_listener(pointer, &listener, this);
}

void LayerPopup::listen(wl_touch *touch) {
    static const auto listener = [] {
        wl_touch_listener events{};
        events.down = [](void *self, wl_touch *, std::uint32_t, std::uint32_t, wl_surface *surface,
                         std::int32_t, wl_fixed_t,
                         wl_fixed_t) { static_cast<LayerPopup *>(self)->pressed(surface); };
        events.up = [](void *, wl_touch *, std::uint32_t, std::uint32_t, std::int32_t) {};
        events.motion = [](void *, wl_touch *, std::uint32_t, std::int32_t, wl_fixed_t,
                           wl_fixed_t) {};
        events.frame = [](void *, wl_touch *) {};
        events.cancel = [](void *, wl_touch *) {};
        return events;
    }();
    wl_touch_add_listener(touch, &listener, this);
}

void LayerPopup::pressed(wl_surface *surface) {
    if (shown_ && surface == shown_->surface.get()) {
        close();
    }
}

void LayerPopup::open() {
    const auto ifAnswered = [this](auto then) {
        return [this, then](bool answered) {
            if (answered && available() && !closed_) {
                then();
            } else {
                close();
            }
        };
    };
    // What the compositor has, and then the scales of the screens and whether there is a pointer.
    loop_.afterRoundTrip(pasteboardServerLimit, ifAnswered([this, ifAnswered] {
                             askPositions();
                             loop_.afterRoundTrip(pasteboardServerLimit, ifAnswered([this] {
                                                      if (popup_.atPointer && pointer_ &&
                                                          viewporter_ && !outputs_.empty() &&
                                                          !tooLate_) {
                                                          lookForPointer();
                                                      } else {
                                                          measureScreen(nullptr);
                                                      }
                                                  }));
                         }));
}

void LayerPopup::lookForPointer() {
    for (const auto &[output, known] : outputs_) {
        probes_.push_back(std::make_unique<Probe>(*this, output));
    }
}

void LayerPopup::pointerEntered(wl_surface *surface, int x, int y) {
    under_ = surface;
    const auto probe = std::ranges::find_if(probes_, [surface](const auto &candidate) {
        return candidate->layer.surface.get() == surface;
    });
    if (surface && probe != probes_.end()) {
        pointerAt_ = PopupPoint{x, y};
        wl_output *output = (*probe)->output;
        under_ = nullptr; // destroyed with the other surfaces
        probes_.clear();
        measureScreen(output);
    }
}

void LayerPopup::pointerUnknown() {
    tooLate_ = true;
    if (!probes_.empty()) {
        probes_.clear();
        measureScreen(nullptr);
    }
}

void LayerPopup::measureScreen(wl_output *output) {
    wl_output *on = outputs_.contains(output) ? output : nullptr;
    shown_ = std::make_unique<Layer>(*this, on, wholeScreen, [this, on](int width, int height) {
        shown_->configured = nullptr;
        const auto known = outputs_.find(on);
        const PopupPoint origin = known == outputs_.end() ? PopupPoint() : known->second.origin;
        screen_ = {width, height, {}, width, height, origin};
        measureFreeArea(outputs_.contains(on) ? on : nullptr);
    });
    static const auto listener = [] {
        wl_surface_listener events{};
        events.enter = [](void *self, wl_surface *, wl_output *screen) {
            static_cast<LayerPopup *>(self)->entered(screen);
        };
        events.leave = [](void *, wl_surface *, wl_output *) {};
        return events;
    }();
    wl_surface_add_listener(shown_->surface.get(), &listener, this);
}

void LayerPopup::measureFreeArea(wl_output *output) {
    free_ = std::make_unique<Layer>(*this, output, besidePanels, [this](int width, int height) {
        free_->configured = nullptr;
        screen_.freeWidth = std::min(width, screen_.width);
        screen_.freeHeight = std::min(height, screen_.height);
        measurePanels();
    });
}

void LayerPopup::measurePanels() {
    const PopupPoint panels{screen_.width - screen_.freeWidth, screen_.height - screen_.freeHeight};
    screen_.free = {0, panels.y}; // without better knowledge: assume a panel at the top
    if (!windows_ || (panels.x == 0 && panels.y == 0)) {
        place();
        return;
    }
    menu_ = std::make_unique<Menu>(*this, *free_, [this, panels](int x, int y) {
        screen_.free = {-std::clamp(x, -panels.x, 0), -std::clamp(y, -panels.y, 0)};
        place();
    });
    // The compositor may send this event a moment after it has answered the round trip.
    loop_.afterRoundTrip(pasteboardServerLimit, [this](bool) {
        loop_.afterRoundTrip(pasteboardServerLimit, [this](bool) {
            if (menu_) {
                place();
            }
        });
    });
}

void LayerPopup::place() {
    menu_.reset();
    free_.reset();
    const PopupPoint at = popup_.place(screen_, pointerAt_);
    auto *role = shown_->role.get();
    zwlr_layer_surface_v1_set_size(role, static_cast<std::uint32_t>(popup_.width),
                                   static_cast<std::uint32_t>(popup_.height));
    zwlr_layer_surface_v1_set_anchor(role, ZWLR_LAYER_SURFACE_V1_ANCHOR_TOP |
                                               ZWLR_LAYER_SURFACE_V1_ANCHOR_LEFT);
    zwlr_layer_surface_v1_set_margin(role, at.y, 0, 0, at.x);
    wl_surface_commit(shown_->surface.get());
    // The compositor tells which screen the popup is on only after a picture was attached.
    for (const auto &[output, known] : outputs_) {
        scale_ = std::max(scale_, known.scale);
    }
    scale_ = std::max(scale_, 1);
    hooks_.draw(scale_);
}

void LayerPopup::entered(wl_output *output) {
    const auto known = outputs_.find(output);
    if (known != outputs_.end() && known->second.scale != scale_) {
        scale_ = known->second.scale;
        hooks_.draw(scale_);
    }
}

void LayerPopup::setPicture(const PopupPicture &picture) {
    const auto count =
        static_cast<std::size_t>(picture.width) * static_cast<std::size_t>(picture.height);
    if (!shown_ || picture.scale != scale_ || count == 0 || picture.pixels.size() != count) {
        return;
    }
    auto buffer =
        std::make_unique<Buffer>(shm_, picture.width, picture.height, picture.pixels.data());
    if (!buffer->buffer) {
        close();
        return;
    }
    if (wl_compositor_get_version(compositor_) >= WL_SURFACE_SET_BUFFER_SCALE_SINCE_VERSION) {
        wl_surface_set_buffer_scale(shown_->surface.get(), picture.scale);
    }
    shown_->show(*buffer);
    picture_ = std::move(buffer);
}

void LayerPopup::close() {
    if (std::exchange(closed_, true)) {
        return;
    }
    probes_.clear();
    menu_.reset();
    free_.reset();
    shown_.reset();
    hooks_.closed();
}

} // namespace nerlo::platform::wayland
