#include <QFile>
#include <QProcess>
#include <QSettings>
#include <QTest>

#include <xcb/xcb.h>

#include <cstdlib>
#include <memory>

namespace {

const QString kId = QStringLiteral("org.tarnwick_optics.Meridax");

struct FreeReply
{
    void operator()(void *reply) const { std::free(reply); }
};
template <typename T>
using Reply = std::unique_ptr<T, FreeReply>;

/// Another program's look at the windows of an X display.
class Display
{
public:
    Display()
        : m_connection(xcb_connect(nullptr, nullptr))
        , m_root(xcb_setup_roots_iterator(xcb_get_setup(m_connection)).data->root)
    {
    }
    ~Display() { xcb_disconnect(m_connection); }
    Q_DISABLE_COPY_MOVE(Display)

    /// The raw bytes of the property; empty when the window has none of that name.
    QByteArray property(xcb_window_t window, const QByteArray &name) const
    {
        constexpr uint32_t most = 1 << 20; // units of four bytes
        const Reply<xcb_intern_atom_reply_t> atom(xcb_intern_atom_reply(
            m_connection,
            xcb_intern_atom(m_connection, 0, static_cast<uint16_t>(name.size()), name.constData()),
            nullptr));
        const Reply<xcb_get_property_reply_t> value(xcb_get_property_reply(
            m_connection,
            xcb_get_property(m_connection, 0, window, atom->atom, XCB_ATOM_ANY, 0, most), nullptr));
        if (!value)
            return {};
        return {static_cast<const char *>(xcb_get_property_value(value.get())),
                xcb_get_property_value_length(value.get())};
    }

    /// The visible top-level window with that title, or XCB_NONE.
    xcb_window_t findWindow(const QByteArray &title) const
    {
        const Reply<xcb_query_tree_reply_t> tree(
            xcb_query_tree_reply(m_connection, xcb_query_tree(m_connection, m_root), nullptr));
        const xcb_window_t *const windows = xcb_query_tree_children(tree.get());
        for (int i = 0; i < xcb_query_tree_children_length(tree.get()); ++i) {
            const Reply<xcb_get_window_attributes_reply_t> attributes(
                xcb_get_window_attributes_reply(
                    m_connection, xcb_get_window_attributes(m_connection, windows[i]), nullptr));
            if (attributes && attributes->map_state == XCB_MAP_STATE_VIEWABLE &&
                property(windows[i], "_NET_WM_NAME") == title)
                return windows[i];
        }
        return XCB_NONE;
    }

private:
    xcb_connection_t *m_connection;
    xcb_window_t m_root;
};

} // namespace

/// What ties the window to its entry in the menu.
class TestWindowIdentity : public QObject
{
    Q_OBJECT

private slots:
    void theDesktopEntryFindsTheWindow()
    {
        QProcess program;
        program.start(qEnvironmentVariable("MERIDAX_PROGRAM"), QStringList());
        const Display display;
        xcb_window_t window = XCB_NONE;
        QTRY_VERIFY_WITH_TIMEOUT((window = display.findWindow("Meridax")) != XCB_NONE, 20000);

        const QString path = QStringLiteral(MERIDAX_PACKAGING "/%1.desktop").arg(kId);
        QVERIFY(QFile::exists(path));
        QSettings entry(path, QSettings::IniFormat);
        entry.beginGroup(QStringLiteral("Desktop Entry"));
        QCOMPARE(entry.value("Icon").toString(), kId);

        // Instance and class, each with its end.
        const QByteArrayList names = display.property(window, "WM_CLASS").split('\0');
        QCOMPARE(QString::fromUtf8(names.value(1)), entry.value("StartupWMClass").toString());
        QCOMPARE(names.value(0), entry.value("Exec").toByteArray());
        QCOMPARE(display.property(window, "_KDE_NET_WM_DESKTOP_FILE"), kId.toUtf8());

        // A drawing that cannot be read leaves no picture or an empty one.
        const QByteArray icon = display.property(window, "_NET_WM_ICON");
        QVERIFY(icon.size() > 16 * 16 * 4);
        QVERIFY(icon.contains('\xff'));

        program.terminate();
        QVERIFY(program.waitForFinished());
    }
};

QTEST_GUILESS_MAIN(TestWindowIdentity)
#include "tst_windowidentity.moc"
