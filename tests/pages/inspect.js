// Appended to a copy of a page that stands in a frame 360 pixels wide. Tells the frame's owner, a line each, what
// is wrong with the page and what its tables hold in the order in which a person reads them: down the columns,
// by where the cells stand on the screen.
addEventListener('load', () => {
  const lines = [];
  const fault = (text) => lines.push('fault: ' + text);

  for (const name of ['href', 'src', 'srcset', 'data', 'poster', 'action'])
    for (const element of document.querySelectorAll(`[${name}]`)) {
      const value = element.getAttribute(name);
      if (value.startsWith('#')) {
        if (!document.getElementById(decodeURIComponent(value.slice(1)))) fault('no target for ' + value);
      } else if (!value.startsWith('data:')) fault('reaches outside: ' + value);
    }
  for (const style of document.querySelectorAll('style'))
    if (/@import|url\((?!['"]?data:)/.test(style.textContent)) fault('a style reaches outside');
  for (const element of document.querySelectorAll('[id]'))
    if (document.getElementById(element.id) !== element) fault('id used twice: ' + element.id);
  for (const heading of document.querySelectorAll('h2, h3')) {
    if (!heading.id) fault('no anchor: ' + heading.textContent);
    if (heading.tagName === 'H2' && !document.querySelector(`nav a[href="#${heading.id}"]`))
      fault('not in the contents: ' + heading.textContent);
  }
  const width = document.documentElement.scrollWidth;
  const room = document.documentElement.clientWidth;
  if (innerWidth !== 360 || width > room) fault(`${width} pixels wide in ${room}`);

  for (const table of document.querySelectorAll('table')) {
    const places = [...table.querySelectorAll('td')].map((cell) => [cell, cell.getBoundingClientRect()]);
    places.sort(([, a], [, b]) => a.left - b.left || a.top - b.top);
    lines.push('table');
    for (const [cell] of places) lines.push(('cell: ' + cell.innerText).trim());
  }
  parent.postMessage(['title: ' + document.title, ...lines].join('\n'), '*');
});
