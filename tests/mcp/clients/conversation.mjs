// What every client does with the companion, whatever its generation.
import assert from 'node:assert/strict';

export async function converse(client) {
    const { tools } = await client.listTools();
    const byName = new Map(tools.map((tool) => [tool.name, tool]));
    assert.equal(byName.get('get_document').annotations.readOnlyHint, true);
    assert.equal(byName.get('create_document').title, 'Create a document');

    const call = async (name, args) => client.callTool({ name, arguments: args });
    const created = await call('create_document', { title: 'Dämmerung', body: 'Ein *Wort*.' });
    assert.ok(!created.isError);
    assert.equal(created.content[0].text, "Created document 'Dämmerung'.");
    const failed = await call('get_document', { title: 'None' });
    assert.equal(failed.isError, true);
    await assert.rejects(call('make_coffee', {}), /Unknown tool: make_coffee/);

    const { resources } = await client.listResources();
    assert.equal(resources.length, 1);
    const read = await client.readResource({ uri: resources[0].uri });
    assert.match(read.contents[0].text, /Ein \*Wort\*\.$/);
    await assert.rejects(client.readResource({ uri: 'vellory://document/none' }), /Unknown resource/);

    const { prompts } = await client.listPrompts();
    assert.deepEqual(prompts.map((prompt) => prompt.name).sort(), [
        'chapter_summary', 'continuity_review', 'name_brainstorm',
    ]);
    const prompt = await client.getPrompt({ name: 'chapter_summary', arguments: { document: 'Dämmerung' } });
    assert.match(prompt.messages[0].content.text, /'Dämmerung'/);

    const undone = await call('undo_last', {});
    assert.equal(undone.content[0].text, 'Undid the last change.');
}
