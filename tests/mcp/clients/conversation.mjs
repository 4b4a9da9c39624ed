// What every client does with the companion, whatever its generation, on a copy of the sample project.
import assert from 'node:assert/strict';
import { readFile } from 'node:fs/promises';

/** Calls tools by `call(name, args, options)`, and does the rest with the client. */
export async function converse(call, client) {
    const { tools } = await client.listTools();
    const byName = new Map(tools.map((tool) => [tool.name, tool]));
    assert.equal(byName.get('get_document').annotations.readOnlyHint, true);
    assert.equal(byName.get('create_document').title, 'Create a document');

    await talkOfOneDocument(call, client);
    await callEverything(call, tools);
    await cancelOne(call);
}

async function talkOfOneDocument(call, client) {
    const created = await call('create_document', { title: 'Dämmerung', body: 'Ein *Wort*.' });
    assert.ok(!created.isError);
    assert.equal(created.content[0].text, "Created document 'Dämmerung'.");
    const failed = await call('get_document', { title: 'None' });
    assert.equal(failed.isError, true);
    await assert.rejects(call('make_coffee', {}), /Unknown tool: make_coffee/);

    const { resources } = await client.listResources();
    const resource = resources.find(({ name, title }) => name === 'Dämmerung' || title === 'Dämmerung');
    const read = await client.readResource({ uri: resource.uri });
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

/** Every tool, with arguments that are right and with none. */
async function callEverything(call, tools) {
    const calls = JSON.parse(await readFile(new URL('valid-calls.json', import.meta.url)));
    assert.deepEqual(calls.map(({ tool }) => tool).sort(), tools.map(({ name }) => name).sort());
    await call('create_document', { title: 'Undone' });
    for (const { tool, arguments: args } of calls) {
        const { isError, content } = await call(tool, args);
        assert.ok(!isError, `${tool}: ${content[0].text}`);
        assert.ok(content[0].text.length > 0, tool);
    }
    for (const { name, inputSchema } of tools) {
        const { isError, content } = await call(name, {});
        if (inputSchema.required?.length) assert.ok(isError, `${name} without arguments`);
        if (isError) assert.match(content[0].text, new RegExp(`"|${name}`), name);
    }
}

/** What is called off while it waits its turn is not done, and the others are answered. */
async function cancelOne(call) {
    const long = Array.from({ length: 40 }, () => call('find_replace', { find: '[a-z]+', regex: true }));
    const controller = new AbortController();
    const calledOff = call('create_document', { title: 'Called off' }, { signal: controller.signal });
    controller.abort(new Error('The writer thought better of it.'));
    await assert.rejects(calledOff, /thought better of it/);
    for (const { isError } of await Promise.all(long)) assert.ok(!isError);
    const { content } = await call('get_document', { title: 'Called off' });
    assert.equal(content[0].text, "No document named 'Called off' exists.");
}
