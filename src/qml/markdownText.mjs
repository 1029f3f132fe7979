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

const Line = Object.freeze({ Blank: 0, Heading: 1, Item: 2, Text: 3 });

/// Whether the view lays `markdown` out in a moment. The time grows with the square of the lines, of
/// the cells of a table, and of the spans in one paragraph; a text beyond these limits shows as it
/// is written.
export function isModerate(markdown) {
    const maxLines = 2100; // what the server sends is cut at 2000, and a note follows
    const maxTableMarks = 4000;
    const maxSpanMarks = 300;

    const lines = markdown.split(/\r\n|\r|\n/);
    if (lines.length > maxLines || occurrences(markdown, /\|/g) > maxTableMarks)
        return false;
    let marks = 0;
    let before = Line.Blank;
    for (const line of lines) {
        const kind = kindOf(line, before);
        if (kind !== Line.Text)
            marks = 0;
        marks += occurrences(line, /[`*_~<[]/g);
        if (marks > maxSpanMarks)
            return false;
        // A line of text goes on with the item it follows.
        if (kind !== Line.Text || before !== Line.Item)
            before = kind;
    }
    return true;
}

/// What `line` begins; Line.Text where it may go on with the paragraph before it.
function kindOf(line, before) {
    if (/^[ \t]*$/.test(line))
        return Line.Blank;
    if (/^ {0,3}#{1,6} /.test(line))
        return Line.Heading;
    if (/^ {0,3}[-*+] +\S/.test(line))
        return Line.Item;
    // Within a paragraph a list can only begin with 1.
    const number = line.match(/^ {0,3}(\d{1,9})[.)] +\S/);
    return number && (before !== Line.Text || Number(number[1]) === 1) ? Line.Item : Line.Text;
}

function occurrences(text, pattern) {
    return (text.match(pattern) ?? []).length;
}

/// The first line of `text`, as far as a line on the screen can hold it.
export function firstLine(text) {
    const end = text.indexOf("\n");
    return text.slice(0, Math.min(end < 0 ? text.length : end, 500)).replace(/\s+$/, "");
}
