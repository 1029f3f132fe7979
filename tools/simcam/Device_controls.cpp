#include "Device.h"

#include "Log.h"

#include <algorithm>
#include <cerrno>
#include <chrono>
#include <cstring>
#include <ctime>

namespace meridax::simcam {

namespace {

/// The value that `entry` holds for a control of that type.
std::int32_t valueIn(const v4l2_ext_control &entry, const Control &control)
{
    if (!control.is64Bit())
        return entry.value;
    return static_cast<std::int32_t>(
        std::clamp<std::int64_t>(entry.value64, control.min, control.max));
}

void store(std::int32_t value, const Control &control, v4l2_ext_control &entry)
{
    if (control.is64Bit())
        entry.value64 = value;
    else
        entry.value = value;
}

} // namespace

int Device::queryControl(v4l2_query_ext_ctrl &query) const
{
    const std::uint32_t id = query.id;
    const Control *control = nullptr;
    if (id & V4L2_CTRL_FLAG_NEXT_CTRL) {
        const auto all = simcam::controls();
        const auto next = std::find_if(all.begin(), all.end(), [&](const Control &c) {
            return c.id > (id & V4L2_CTRL_ID_MASK) && isOffered(m_state, c);
        });
        control = next == all.end() ? nullptr : &*next;
    } else if (!(id & V4L2_CTRL_FLAG_NEXT_COMPOUND)) {
        control = findControl(m_state, id);
    }
    if (const int error = static_cast<int>(m_state.get(Param::QueryErrno)))
        return -error;
    if (!control)
        return -EINVAL;
    query = {};
    query.id = control->id;
    query.type = control->type;
    std::strncpy(query.name, control->name, sizeof query.name - 1);
    query.minimum = control->min;
    query.maximum = control->max;
    query.step = control->isClass() ? 0 : 1;
    query.default_value = control->defaultValue;
    query.flags = controlFlags(m_state, *control);
    query.elems = control->isClass() ? 0 : 1;
    query.elem_size = control->isClass() ? 0 : control->is64Bit() ? 8 : 4;
    return 0;
}

int Device::checkControls(const v4l2_ext_controls &list, unsigned request,
                          unsigned &errorIndex) const
{
    const bool isGet = request == VIDIOC_G_EXT_CTRLS;
    const bool isSet = request == VIDIOC_S_EXT_CTRLS;
    for (unsigned i = 0; i < list.count; ++i) {
        const Control *control = findControl(m_state, list.controls[i].id);
        int result = 0;
        if (!control) {
            result = -EINVAL;
        } else if (control->isClass() || (isSet && control->flags & V4L2_CTRL_FLAG_READ_ONLY)) {
            result = -EACCES;
        } else if (control->flags & V4L2_CTRL_FLAG_DISABLED) {
            result = -EINVAL;
        } else if (!isGet) {
            std::int32_t value = valueIn(list.controls[i], *control);
            result = validate(*control, value);
            if (result == 0 && isSet && control->master) {
                // A control under automatic rule refuses, unless the same call switches to manual.
                std::int32_t mode = m_state.control[slotOf(*findControl(m_state, control->master))];
                for (unsigned k = 0; k < list.count; ++k)
                    if (list.controls[k].id == control->master)
                        mode = list.controls[k].value;
                if (mode != control->masterManual)
                    result = -EACCES;
                else if (m_state.refusals > 0) {
                    --m_state.refusals;
                    result = -EBUSY;
                }
            }
        }
        if (result) {
            if (!isGet && !isSet)
                errorIndex = i;
            return result;
        }
    }
    return 0;
}

int Device::accessControls(Handle *handle, v4l2_ext_controls &list, unsigned request)
{
    const bool isGet = request == VIDIOC_G_EXT_CTRLS;
    const bool isSet = request == VIDIOC_S_EXT_CTRLS;
    const bool wantsDefaults = list.which == V4L2_CTRL_WHICH_DEF_VAL;
    const std::uint32_t controlClass = wantsDefaults ? 0 : list.which;
    list.error_idx = list.count;
    list.reserved[0] = 0;
    if (list.which == V4L2_CTRL_WHICH_REQUEST_VAL || (wantsDefaults && !isGet))
        return -EINVAL;
    if (controlClass && controlClass != V4L2_CTRL_CLASS_USER &&
        controlClass != V4L2_CTRL_CLASS_CAMERA)
        return -EINVAL;
    if (list.count > V4L2_CID_MAX_CTRLS)
        return -EINVAL;
    if (!isReadable(list.controls, list.count * sizeof *list.controls))
        return -EFAULT;
    for (unsigned i = 0; controlClass && i < list.count; ++i) {
        if (V4L2_CTRL_ID2WHICH(list.controls[i].id) != controlClass) {
            if (!isGet && !isSet)
                list.error_idx = i;
            return -EINVAL;
        }
    }
    if (const int error = static_cast<int>(m_state.get(Param::ControlErrno)); error && isSet)
        return -error;
    // All are checked before the first one changes.
    if (const int result = checkControls(list, request, list.error_idx))
        return result;
    for (unsigned i = 0; i < list.count; ++i) {
        v4l2_ext_control &entry = list.controls[i];
        const Control &control = *findControl(m_state, entry.id);
        if (isGet) {
            store(wantsDefaults ? control.defaultValue : m_state.control[slotOf(control)].load(),
                  control, entry);
            continue;
        }
        std::int32_t value = valueIn(entry, control);
        validate(control, value);
        store(value, control, entry);
        if (isSet)
            setControl(handle, control, value);
    }
    return 0;
}

void Device::setControl(const Handle *from, const Control &control, std::int32_t value)
{
    ++m_state.controlWrites;
    const std::int32_t old = m_state.control[slotOf(control)].exchange(value);
    m_state.held[slotOf(control)] = value;
    log("%s = %d (was %d)", control.name, value, old);
    if (old == value)
        return;
    notify(from, control, V4L2_EVENT_CTRL_CH_VALUE);
    for (const Control &other : simcam::controls())
        if (other.master == control.id && isOffered(m_state, other)) {
            notify(nullptr, other, V4L2_EVENT_CTRL_CH_FLAGS);
            m_state.refusals = static_cast<std::uint32_t>(m_state.get(Param::RefuseFirst));
        }
}

v4l2_event Device::controlEvent(const Control &control, std::uint32_t changes) const
{
    v4l2_event event{};
    event.type = V4L2_EVENT_CTRL;
    event.id = control.id;
    event.u.ctrl.changes = changes;
    event.u.ctrl.type = control.type;
    event.u.ctrl.flags = controlFlags(m_state, control);
    if (!control.isClass()) {
        event.u.ctrl.value = m_state.control[slotOf(control)];
        event.u.ctrl.minimum = control.min;
        event.u.ctrl.maximum = control.max;
        event.u.ctrl.step = 1;
        event.u.ctrl.default_value = control.defaultValue;
    }
    clock_gettime(CLOCK_MONOTONIC, &event.timestamp);
    return event;
}

namespace {

/// Adds an event; one of the same control that still waits takes up the new values instead.
void post(Handle &handle, v4l2_event event)
{
    for (v4l2_event &waiting : handle.events) {
        if (waiting.type == event.type && waiting.id == event.id) {
            event.u.ctrl.changes |= waiting.u.ctrl.changes;
            waiting = event;
            return;
        }
    }
    handle.events.push_back(event);
}

} // namespace

void Device::notify(const Handle *from, const Control &control, std::uint32_t changes)
{
    for (Handle *handle : m_handles)
        for (const auto &s : handle->subscriptions)
            if (s.type == V4L2_EVENT_CTRL && s.id == control.id &&
                (handle != from || s.flags & V4L2_EVENT_SUB_FL_ALLOW_FEEDBACK))
                post(*handle, controlEvent(control, changes));
    m_changed.notify_all();
}

int Device::subscribe(Handle *handle, const v4l2_event_subscription &subscription)
{
    const Control *control = findControl(m_state, subscription.id);
    if (subscription.type != V4L2_EVENT_CTRL || !control)
        return -EINVAL;
    handle->subscriptions.push_back(subscription);
    if (subscription.flags & V4L2_EVENT_SUB_FL_SEND_INITIAL)
        post(*handle,
             controlEvent(*control, V4L2_EVENT_CTRL_CH_FLAGS |
                                        (control->isClass() ? 0 : V4L2_EVENT_CTRL_CH_VALUE)));
    return 0;
}

int Device::dequeueEvent(Handle *handle, v4l2_event &out, Lock &lock)
{
    if (handle->events.empty() && handle->isNonBlocking())
        return -ENOENT;
    while (handle->events.empty() && !isGone()) // in steps, to see the unplugging
        m_changed.wait_for(lock, std::chrono::milliseconds(100));
    if (isGone())
        return -ENODEV;
    out = handle->events.front();
    handle->events.pop_front();
    out.pending = static_cast<std::uint32_t>(handle->events.size());
    out.sequence = handle->eventSequence++;
    std::fill(std::begin(out.reserved), std::end(out.reserved), 0U);
    return 0;
}

} // namespace meridax::simcam
