// The data-control protocol: a seat's selection without a surface or the focus.
//
// It exists under two names that are the same on the wire, so one set of functions speaks both. The
// objects are libwayland proxies; everything here runs on the thread of their connection.
#pragma once

#include <cstdint>

struct wl_interface;
struct wl_proxy;
struct wl_seat;

namespace nerlo::platform::wayland {

// What the compositor tells about a seat's selections. An offer given to `newOffer` is named again
// by the event that says which selection it is; null there is an empty selection.
class DeviceEvents {
  public:
    virtual void newOffer(wl_proxy *offer) = 0;
    virtual void selection(wl_proxy *offer) = 0;
    virtual void primarySelection(wl_proxy *offer) = 0;
    // The device is dead and has to be destroyed.
    virtual void finished() = 0;

  protected:
    ~DeviceEvents() = default;
};

class OfferEvents {
  public:
    virtual void offeredFormat(wl_proxy *offer, const char *format) = 0;

  protected:
    ~OfferEvents() = default;
};

class SourceEvents {
  public:
    // The receiver of this call owns `fd`: write the data there, then close it.
    virtual void send(wl_proxy *source, const char *format, int fd) = 0;
    // The source was replaced and has to be destroyed.
    virtual void cancelled(wl_proxy *source) = 0;

  protected:
    ~SourceEvents() = default;
};

struct DataControl {
    const char *name;
    const wl_interface *manager;
    const wl_interface *device;
    const wl_interface *source;

    wl_proxy *newSource(wl_proxy *manager, SourceEvents &events) const;
    wl_proxy *newDevice(wl_proxy *manager, wl_seat *seat, DeviceEvents &events) const;
};

// In the order of preference.
extern const DataControl dataControls[2];

void listen(wl_proxy *offer, OfferEvents &events);
void addFormat(wl_proxy *source, const char *format);
// Null empties the selection.
void setSelection(wl_proxy *device, wl_proxy *source);
// `fd` stays the caller's.
void receive(wl_proxy *offer, const char *format, int fd);
void destroyManager(wl_proxy *manager);
void destroyDevice(wl_proxy *device);
void destroySource(wl_proxy *source);
void destroyOffer(wl_proxy *offer);

} // namespace nerlo::platform::wayland
