// Markdown that came from a server, made fit to be shown.

// Invisible, and no part of any markup.
const wordJoiner = "\u2060";

/// `markdown` without anything that the view would load: images become links, HTML becomes text.
export function withoutResources(markdown) {
    return markdown
        .replace(/!+(?=\[)/g, "")
        // All that can open a tag, a comment or a declaration; an address in angle brackets cannot.
        .replace(/<(?=[a-zA-Z/!?])(?!https?:\/\/[^\s<>]*>)/gi, "<" + wordJoiner);
}

/// Whether the view lays `markdown` out in a moment. The time grows with the square of the lines, of
/// the cells of a table, and of the spans in one paragraph; a text beyond these limits shows as it
/// is written.
export function isModerate(markdown) {
    const maxLines = 2100; // what the server sends is cut at 2000, and a note follows
    const maxTableMarks = 4000;
    const maxSpanMarks = 300;
    const beginsParagraph = /^ {0,3}(?:[-*+] +\S|#{1,6} |$)/;

    const lines = markdown.split("\n");
    if (lines.length > maxLines || occurrences(markdown, /\|/g) > maxTableMarks)
        return false;
    let marks = 0;
    for (const line of lines) {
        if (beginsParagraph.test(line))
            marks = 0;
        marks += occurrences(line, /[`*_~<[]/g);
        if (marks > maxSpanMarks)
            return false;
    }
    return true;
}

function occurrences(text, pattern) {
    return (text.match(pattern) ?? []).length;
}

/// The first line of `text`, as far as a line on the screen can hold it.
export function firstLine(text) {
    const end = text.indexOf("\n");
    return text.slice(0, Math.min(end < 0 ? text.length : end, 500)).replace(/\s+$/, "");
}
