<?php

declare(strict_types=1);

// The page behind the link of an invitation: names the question set that the team is to answer and
// offers the packages that lie in the folder `packages` beside this file.

const MODULES = [
    'gbs' => 'General Business Strategy',
    'hrp' => 'Human Resources Planning',
    'mp' => 'Marketing Planning',
    'psd' => 'Product / Service Development',
    'sbd' => 'Sales & Business Development',
];

// What a package is for, by its name.
const SYSTEMS = [
    '/^orvanta-.*-setup\.exe$/i' => 'Orvanta for Windows',
    '/^orvanta-.*-portable\.zip$/i' => 'Orvanta for Windows, to use without installing',
    '/^orvanta_.*\.deb$/i' => 'Orvanta for Debian and Ubuntu',
    '/^orvanta-sound_.*\.deb$/i' => 'Its voice for Debian and Ubuntu, to be installed with it',
    '/^orvanta-.*\.tar\.gz$/i' => 'Orvanta for other Linux systems',
];

function escaped(string $text): string
{
    return htmlspecialchars($text, ENT_QUOTES | ENT_HTML5, 'UTF-8');
}

/** The code that was asked for; mail programs may take the blank behind the link along. */
function codeAskedFor(): string
{
    $type = $_GET['type'] ?? '';
    return is_string($type) ? trim($type, ' ') : '';
}

/** The newest package of each system, as pairs of file name and what it is for. */
function packages(): array
{
    $found = [];
    $names = is_dir(__DIR__ . '/packages') ? scandir(__DIR__ . '/packages') : [];
    natsort($names);
    foreach (SYSTEMS as $pattern => $system) {
        $fitting = preg_grep($pattern, $names);
        if ($fitting) {
            $found[] = [end($fitting), $system];
        }
    }
    return $found;
}

function sizeInWords(string $name): string
{
    return sprintf('%.1f MB', filesize(__DIR__ . '/packages/' . $name) / 1e6);
}

$code = codeAskedFor();
$module = MODULES[$code] ?? null;
$packages = packages();
$title = $module === null ? 'Page not found' : $module;
if ($module === null) {
    http_response_code(404);
}
header('Content-Type: text/html; charset=utf-8');
?>
<!DOCTYPE html>
<html lang="en-US">
<head>
  <meta charset="utf-8">
  <title><?= escaped($title) ?> - Orvanta</title>
  <meta name="viewport" content="width=device-width, initial-scale=1">
  <link rel="icon" href="pictures/mark.svg" type="image/svg+xml">
  <link rel="stylesheet" href="shared/site.css">
</head>
<body>
<a class="skip" href="#content">Skip to the content</a>
<header class="head">
  <div class="brand">
    <img src="pictures/mark.svg" alt="" width="40" height="40">
    <img src="pictures/wordmark.svg" alt="Orvanta" width="130" height="26">
  </div>
  <nav aria-label="Pages">
    <ul>
      <li><a href="orvanta-overview/index.html">Overview</a></li>
      <li><a href="support/index.html">Support</a></li>
    </ul>
  </nav>
</header>
<main id="content" class="page">
<?php if ($module === null): ?>
<h1>There is no such question set</h1>
<p class="lead">The link that brought you here is not complete, or a letter in it has changed. Copy it once more
  from the invitation, or choose the question set that your team leader named:</p>
<ul>
<?php foreach (MODULES as $known => $caption): ?>
  <li><a href="download.php?type=<?= $known ?>"><?= escaped($caption) ?></a></li>
<?php endforeach ?>
</ul>
<?php else: ?>
<h1><?= escaped($module) ?></h1>
<p class="lead">Your team is making a SWOT analysis, and your view counts. Orvanta asks you questions about
  strengths, weaknesses, opportunities and threats, and you answer in your own words.</p>

<h2>1. Get Orvanta</h2>
<?php if ($packages): ?>
<p>The program is free. Choose the package for your computer:</p>
<ul class="packages">
<?php foreach ($packages as [$name, $system]): ?>
  <li><a href="packages/<?= escaped(rawurlencode($name)) ?>"><?= escaped($system) ?>
    <span class="file"><?= escaped($name) ?>, <?= sizeInWords($name) ?></span></a></li>
<?php endforeach ?>
</ul>
<?php else: ?>
<p class="note">No package can be downloaded here at the moment. Please ask the person who invited you for
  the program.</p>
<?php endif ?>

<h2>2. Answer the questions</h2>
<ol>
  <li>Start Orvanta and press <b>Brainstorm</b>.</li>
  <li>Type your name, choose <b><?= escaped($module) ?></b> and press <b>Next&gt;&gt;</b>.</li>
  <li>Type your answers one at a time, and press Enter after each. Press <b>Next&gt;&gt;</b> for the next
    question. No answer is wrong, and you can leave a question out.</li>
  <li>At the last question press <b>Save...</b> and give your file a name.</li>
</ol>

<h2>3. Hand in your file</h2>
<p>Send the file that you saved, its name ends in <code>.bsm</code>, to the person who invited you.</p>

<h2>Good to know</h2>
<p>The <a href="orvanta-overview/index.html">overview</a> shows what a SWOT analysis is and what happens with
  your answers. If something does not work, look at the <a href="support/index.html">support page</a>.</p>
<?php endif ?>
</main>
<footer class="foot">
  <p>Orvanta leads a team through a SWOT analysis. It is free software under the MIT license.</p>
</footer>
</body>
</html>
