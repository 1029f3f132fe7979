// Where the window goes on its screen. All values are logical pixels of the virtual desktop; the
// position is that of the client area, above which the system puts a title bar.
//
// screen: { x, y, width, height, availableWidth, availableHeight }     available: without task bars

const WANTED = { width: 1600, height: 950 };
const LEAST = { width: 800, height: 600 };
const TITLE_BAR = 40; // no system has a higher one
const BORDER = 8;
const REACHABLE = 8; // of the title bar, to take hold of
const KEPT_WIDTH = 120;
const KEPT_HEIGHT = 80;

/// The window of the first start: in the middle of `screen` and, with its frame, no larger than it.
export function first(screen) {
    const width = fitted(WANTED.width, LEAST.width,
                         Math.min(screen.width, screen.availableWidth) - 2 * BORDER);
    const height = fitted(WANTED.height, LEAST.height,
                          Math.min(screen.height, screen.availableHeight) - TITLE_BAR - BORDER);
    return {
        x: screen.x + Math.max(0, Math.round((screen.width - width) / 2)),
        y: screen.y + Math.max(TITLE_BAR, Math.round((screen.height - height) / 2)),
        width: width,
        height: height
    };
}

function fitted(wanted, least, room) {
    return Math.max(least, Math.min(wanted, room));
}

/// `saved` moved so far that a part of the window stays on `screen` and its title bar in reach.
export function reachable(saved, screen) {
    const [left, right] = [screen.x - saved.width + KEPT_WIDTH, screen.x + screen.width - KEPT_WIDTH];
    const bottom = screen.y + screen.height - KEPT_HEIGHT;
    return {
        x: Math.round(Math.max(left, Math.min(right, saved.x))),
        y: Math.round(saved.y < screen.y + REACHABLE ? screen.y + TITLE_BAR
                                                     : Math.min(bottom, saved.y)),
        width: saved.width,
        height: saved.height
    };
}
