#include "platform/wayland/DataControl.h"

#include <ext-data-control-v1-client.h>
#include <wayland-client.h>
#include <wlr-data-control-unstable-v1-client.h>

namespace nerlo::platform::wayland {

namespace {

// The request numbers of one protocol serve for both.
#define NERLO_SAME_REQUEST(request)                                                                \
    static_assert(EXT_DATA_CONTROL_##request == ZWLR_DATA_CONTROL_##request)
NERLO_SAME_REQUEST(MANAGER_V1_CREATE_DATA_SOURCE);
NERLO_SAME_REQUEST(MANAGER_V1_GET_DATA_DEVICE);
NERLO_SAME_REQUEST(MANAGER_V1_DESTROY);
NERLO_SAME_REQUEST(DEVICE_V1_SET_SELECTION);
NERLO_SAME_REQUEST(DEVICE_V1_DESTROY);
NERLO_SAME_REQUEST(SOURCE_V1_OFFER);
NERLO_SAME_REQUEST(SOURCE_V1_DESTROY);
NERLO_SAME_REQUEST(OFFER_V1_RECEIVE);
NERLO_SAME_REQUEST(OFFER_V1_DESTROY);
#undef NERLO_SAME_REQUEST

// The handlers of an object, in the order of the protocol's events.
struct DeviceListener {
    void (*newOffer)(void *, wl_proxy *, wl_proxy *);
    void (*selection)(void *, wl_proxy *, wl_proxy *);
    void (*finished)(void *, wl_proxy *);
    void (*primarySelection)(void *, wl_proxy *, wl_proxy *);
};
struct SourceListener {
    void (*send)(void *, wl_proxy *, const char *, std::int32_t);
    void (*cancelled)(void *, wl_proxy *);
};
struct OfferListener {
    void (*format)(void *, wl_proxy *, const char *);
};
static_assert(sizeof(DeviceListener) == sizeof(ext_data_control_device_v1_listener));
static_assert(sizeof(DeviceListener) == sizeof(zwlr_data_control_device_v1_listener));
static_assert(sizeof(SourceListener) == sizeof(zwlr_data_control_source_v1_listener));
static_assert(sizeof(OfferListener) == sizeof(zwlr_data_control_offer_v1_listener));

// libwayland takes the tables as mutable, but only reads them.
DeviceListener deviceListener{
    [](void *to, wl_proxy *, wl_proxy *offer) { static_cast<DeviceEvents *>(to)->newOffer(offer); },
    [](void *to, wl_proxy *, wl_proxy *offer) {
        static_cast<DeviceEvents *>(to)->selection(offer);
    },
    [](void *to, wl_proxy *) { static_cast<DeviceEvents *>(to)->finished(); },
    [](void *to, wl_proxy *, wl_proxy *offer) {
        static_cast<DeviceEvents *>(to)->primarySelection(offer);
    }};
SourceListener sourceListener{
    [](void *to, wl_proxy *source, const char *format, std::int32_t fd) {
        static_cast<SourceEvents *>(to)->send(source, format, fd);
    },
    [](void *to, wl_proxy *source) { static_cast<SourceEvents *>(to)->cancelled(source); }};
OfferListener offerListener{[](void *to, wl_proxy *offer, const char *format) {
    static_cast<OfferEvents *>(to)->offeredFormat(offer, format);
}};

template <class Listener, class Events>
void addListener(wl_proxy *proxy, Listener &listener, Events &events) {
    wl_proxy_add_listener(proxy, reinterpret_cast<void (**)()>(&listener), &events);
}

void destroy(wl_proxy *proxy, std::uint32_t request) {
    wl_proxy_marshal_flags(proxy, request, nullptr, wl_proxy_get_version(proxy),
                           WL_MARSHAL_FLAG_DESTROY);
}

} // namespace

const DataControl dataControls[2] = {
    {"ext-data-control-v1", &ext_data_control_manager_v1_interface,
     &ext_data_control_device_v1_interface, &ext_data_control_source_v1_interface},
    {"wlr-data-control-unstable-v1", &zwlr_data_control_manager_v1_interface,
     &zwlr_data_control_device_v1_interface, &zwlr_data_control_source_v1_interface}};

wl_proxy *DataControl::newSource(wl_proxy *managerProxy, SourceEvents &events) const {
    wl_proxy *made =
        wl_proxy_marshal_flags(managerProxy, ZWLR_DATA_CONTROL_MANAGER_V1_CREATE_DATA_SOURCE,
                               source, wl_proxy_get_version(managerProxy), 0, nullptr);
    if (made) {
        addListener(made, sourceListener, events);
    }
    return made;
}

wl_proxy *DataControl::newDevice(wl_proxy *managerProxy, wl_seat *seat,
                                 DeviceEvents &events) const {
    wl_proxy *made =
        wl_proxy_marshal_flags(managerProxy, ZWLR_DATA_CONTROL_MANAGER_V1_GET_DATA_DEVICE, device,
                               wl_proxy_get_version(managerProxy), 0, nullptr, seat);
    if (made) {
        addListener(made, deviceListener, events);
    }
    return made;
}

void listen(wl_proxy *offer, OfferEvents &events) {
    addListener(offer, offerListener, events);
}

void addFormat(wl_proxy *source, const char *format) {
    wl_proxy_marshal_flags(source, ZWLR_DATA_CONTROL_SOURCE_V1_OFFER, nullptr,
                           wl_proxy_get_version(source), 0, format);
}

void setSelection(wl_proxy *device, wl_proxy *source) {
    wl_proxy_marshal_flags(device, ZWLR_DATA_CONTROL_DEVICE_V1_SET_SELECTION, nullptr,
                           wl_proxy_get_version(device), 0, source);
}

void receive(wl_proxy *offer, const char *format, int fd) {
    wl_proxy_marshal_flags(offer, ZWLR_DATA_CONTROL_OFFER_V1_RECEIVE, nullptr,
                           wl_proxy_get_version(offer), 0, format, fd);
}

void destroyManager(wl_proxy *manager) {
    destroy(manager, ZWLR_DATA_CONTROL_MANAGER_V1_DESTROY);
}

void destroyDevice(wl_proxy *device) {
    destroy(device, ZWLR_DATA_CONTROL_DEVICE_V1_DESTROY);
}

void destroySource(wl_proxy *source) {
    destroy(source, ZWLR_DATA_CONTROL_SOURCE_V1_DESTROY);
}

void destroyOffer(wl_proxy *offer) {
    destroy(offer, ZWLR_DATA_CONTROL_OFFER_V1_DESTROY);
}

} // namespace nerlo::platform::wayland
