-- Leaves out pictures that have not been made yet, so that the manual can always be built.
local ordner

local function vorhanden(pfad)
  local datei = io.open(ordner .. "/" .. pfad:gsub("^bilder/", ""))
  if datei then datei:close() end
  return datei ~= nil
end

local function bild(element)
  if vorhanden(element.src) then return element end
  return {}
end

return {
  { Meta = function(meta) ordner = pandoc.utils.stringify(meta.bilder) end },
  { Image = bild },
}
