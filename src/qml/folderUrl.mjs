// Folders between file addresses and paths of the platform.

/// The path of a folder given as "file:" address; on a drive the slash before its letter goes.
export function toPath(url) {
    return decodeURIComponent(url.replace(/^file:(\/\/)?(?=\/)/, ""))
        .replace(/^\/([A-Za-z]:)/, "$1");
}

/// The address of a folder given as path.
export function fromPath(path) {
    const parts = path.replace(/\\/g, "/").replace(/^\//, "").split("/");
    return "file:///" + parts.map(encodeURIComponent).join("/").replace(/^([A-Za-z])%3A/, "$1:");
}
