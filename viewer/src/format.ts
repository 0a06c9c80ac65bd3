// Numbers and texts as the page shows them.

const kUnsafe =
  /[\u0000-\u001f\u007f-\u009f\u200b-\u200f\u2028-\u202e\u2060-\u206f\ufeff\ufff9-\ufffb]/g;

/** A text of the model with control characters, and characters that change the direction of text
 *  or have no width, as \xNN or \uNNNN. An absent text is empty. */
export function plainText(text: string | null | undefined): string {
  return (text ?? '').replace(kUnsafe, (character) => {
    const code = character.charCodeAt(0);
    return code < 0x100
      ? '\\x' + code.toString(16).toUpperCase().padStart(2, '0')
      : '\\u' + code.toString(16).toUpperCase().padStart(4, '0');
  });
}

/** The first characters of a text, for cells and labels. */
export function shortText(text: string, limit = 120): string {
  return text.length <= limit ? text : [...text.slice(0, limit)].slice(0, -1).join('') + '…';
}

/** A number with at most `digits` decimals; a dash if there is none. */
export function number(value: number | null | undefined, digits = 3): string {
  if (value === null || value === undefined || !Number.isFinite(value)) return '–';
  const text = value.toFixed(digits);
  return Number(text) === 0 ? (0).toFixed(digits) : text;
}

/** Metres as millimetres, without trailing zeros. */
export function sizeInMillimetres(metres: number): string {
  return String(Math.round(metres * 1e5) / 100);
}

export function withUnit(value: number | null | undefined, unit: string, digits = 3): string {
  const text = number(value, digits);
  return text === '–' ? text : `${text} ${unit}`;
}

/** Counts with a space between thousands. */
export function count(value: number): string {
  return String(value).replace(/\B(?=(\d{3})+$)/g, '\u202f');
}
